#include "data/reference_loader.h"

#include "data/reference_file.h"
#include "data/text_decoding.h"
#include "foundation/bundle.h"
#include "foundation/printable.h"
#include "foundation/regular_file.h"

namespace velmora {

namespace {

std::string quoted(const std::filesystem::path& path) {
    return "\"" + text::printable(path.string()) + "\"";
}

std::string cannotRead(const std::filesystem::path& path, const std::string& why) {
    return "The reference file " + quoted(path) + " could not be read: " + why;
}

} // namespace

ReadText readTextFile(const std::filesystem::path& path) {
    const auto failure = [&path](const std::string& why) {
        return ReadText{std::nullopt, cannotRead(path, why)};
    };
    FileBytes file =
        readRegularFile(path, referenceFileLimit, "reference table", windows1252Growth);
    if (!file.bytes) {
        return failure(file.error);
    }
    DecodedText decoded = decodeText(std::move(*file.bytes));
    if (!decoded.text) {
        return failure(decoded.error);
    }
    return {std::move(decoded.text), {}};
}

ReferenceLoad loadReferenceSet(const std::optional<std::filesystem::path>& path, std::ostream& out,
                               StoneList& arr_stones, StoneList& arr_stonesGlobal) {
    if (!path) {
        out << "The reference file " << referenceResourceName << '.' << referenceResourceType
            << " is not among the application's resources" << std::endl;
        return {};
    }
    ReferenceLoad load{true, {}};
    ReferenceTable table;
    {
        // The text becomes the table's: its records' cells lie in it.
        ReadText read = readTextFile(*path);
        if (!read.text) {
            out << read.error << std::endl;
            return {};
        }
        table = parseReferenceTable(std::move(*read.text));
    }
    if (table.tooManyStones) {
        out << cannotRead(*path, "it holds more than " + std::to_string(referenceStoneLimit) +
                                     " stones, the most a reference table may hold")
            << std::endl;
        return {};
    }
    if (table.rows == 0 && !table.headerAlone) {
        load.holdsNoStone = "The reference file " + quoted(*path) +
                            " holds no stone: no line after the first has the 28 "
                            "comma-separated columns of a reference table";
    }
    arr_stones = std::move(table.stones);
    arr_stonesGlobal = arr_stones;
    return load;
}

std::optional<std::filesystem::path> referenceFilePath(const Bundle& bundle) {
    return bundle.pathForResource(referenceResourceName, referenceResourceType);
}

} // namespace velmora
