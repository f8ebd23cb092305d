#include "app/cli/output.h"

#include "foundation/printable.h"

#include <nlohmann/json.hpp>
#include <ostream>

namespace velmora::cli {

void printRecord(std::ostream& out, bool json, const Fields& fields) {
    if (json) {
        nlohmann::ordered_json object = nlohmann::ordered_json::object();
        for (const auto& [key, value] : fields) {
            object[key] = value;
        }
        // Replace rather than throw on a cell that is not UTF-8: the line must still come out.
        out << object.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace)
            << '\n';
        return;
    }
    bool first = true;
    for (const auto& field : fields) {
        // A name from the reference file must not reach the terminal as a control sequence.
        out << (first ? "" : "\t") << text::printable(field.second);
        first = false;
    }
    out << '\n';
}

} // namespace velmora::cli
