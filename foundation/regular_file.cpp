#include "foundation/regular_file.h"

#include "foundation/readable_file.h"

namespace velmora {

std::string sizeText(std::size_t bytes) {
    constexpr std::size_t kib = 1024;
    if (bytes >= kib * kib && bytes % (kib * kib) == 0) {
        return std::to_string(bytes / (kib * kib)) + " MiB";
    }
    if (bytes >= kib && bytes % kib == 0) {
        return std::to_string(bytes / kib) + " KiB";
    }
    return std::to_string(bytes) + " bytes";
}

FileBytes readRegularFile(const std::filesystem::path& path, std::size_t limit,
                          std::string_view kind, std::size_t growth) {
    const auto failure = [](std::string why) {
        return FileBytes{std::nullopt, std::move(why)};
    };
    const auto tooLarge = [&] {
        return failure("it is larger than " + sizeText(limit) + ", the most a " +
                       std::string(kind) + " may hold");
    };
    ReadableFile file(path);
    if (!file.isOpen()) {
        return failure(file.error());
    }
    if (file.kind() == ReadableFile::Kind::Folder) {
        return failure("it is a folder");
    }
    if (file.kind() != ReadableFile::Kind::Regular) {
        return failure("it is not a file but a device, a pipe or a socket");
    }
    if (file.size() > limit) {
        return tooLarge();
    }
    // One buffer of the file's size; a file that grows while it is read is followed up to the
    // limit.
    const auto size = static_cast<std::size_t>(file.size());
    std::string bytes;
    bytes.reserve(size * growth);
    bytes.resize(size);
    std::size_t got = 0;
    while (got < size) {
        const auto n = file.read(bytes.data() + got, size - got);
        if (!n) {
            return failure(file.error());
        }
        if (*n == 0) {
            break;
        }
        got += *n;
    }
    bytes.resize(got);
    if (got == size) {
        char chunk[1 << 16];
        for (;;) {
            const auto n = file.read(chunk, sizeof chunk);
            if (!n) {
                return failure(file.error());
            }
            if (*n == 0) {
                break;
            }
            if (*n > limit - bytes.size()) {
                return tooLarge();
            }
            bytes.append(chunk, *n);
        }
    }
    return {std::move(bytes), {}};
}

} // namespace velmora
