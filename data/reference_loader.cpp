#include "data/reference_loader.h"

#include "data/reference_file.h"
#include "data/text_decoding.h"
#include "foundation/bundle.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

namespace velmora {

ReadText readTextFile(const std::filesystem::path& path) {
    const auto failure = [&path](const std::string& why) {
        return ReadText{std::nullopt,
                        "The reference file \"" + path.string() + "\" could not be read: " + why};
    };
    std::error_code ec;
    if (std::filesystem::is_directory(path, ec)) {
        return failure("it is a folder");
    }
    std::unique_ptr<std::FILE, decltype(&std::fclose)> file(std::fopen(path.c_str(), "rb"),
                                                            &std::fclose);
    if (!file) {
        return failure(std::strerror(errno));
    }
    // Read in one piece: sized from the file, and grown for a file that grows while being read.
    const auto expected = std::filesystem::file_size(path, ec);
    std::string bytes(ec ? 0 : expected, '\0');
    std::size_t size = 0;
    for (;;) {
        if (size == bytes.size()) {
            bytes.resize(bytes.size() + (1 << 16));
        }
        const std::size_t n = std::fread(bytes.data() + size, 1, bytes.size() - size, file.get());
        size += n;
        if (n == 0) {
            break;
        }
    }
    if (std::ferror(file.get())) {
        return failure(std::strerror(errno));
    }
    bytes.resize(size);
    DecodedText decoded = decodeText(std::move(bytes));
    if (!decoded.text) {
        return failure(decoded.error);
    }
    return {std::move(decoded.text), {}};
}

bool loadReferenceSet(const std::optional<std::filesystem::path>& path, std::ostream& out,
                      StoneList& arr_stones, StoneList& arr_stonesGlobal) {
    if (!path) {
        out << "The reference file " << referenceResourceName << '.' << referenceResourceType
            << " is not among the application's resources" << std::endl;
        return false;
    }
    const ReadText read = readTextFile(*path);
    if (!read.text) {
        out << read.error << std::endl;
        return false;
    }
    arr_stones = StoneList(parseReferenceText(*read.text));
    arr_stonesGlobal = arr_stones;
    return true;
}

std::optional<std::filesystem::path> referenceFilePath(const Bundle& bundle) {
    return bundle.pathForResource(referenceResourceName, referenceResourceType);
}

} // namespace velmora
