#include "tests/support/reference_rows.h"

namespace velmora::test {

std::string row(const std::map<int, std::string>& cells) {
    std::string line;
    for (int i = 0; i < 28; ++i) {
        if (i > 0) {
            line += ',';
        }
        if (const auto it = cells.find(i); it != cells.end()) {
            line += it->second;
        } else if (i == 16) {
            line += '1';
        }
    }
    return line;
}

std::string stoneRow(const std::string& id, const std::string& name, const std::string& ri,
                     const std::string& sg, const std::string& hardness,
                     const std::string& color1) {
    return row({{0, id}, {1, name}, {5, sg}, {6, ri}, {9, hardness}, {22, color1}});
}

} // namespace velmora::test
