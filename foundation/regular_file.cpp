#include "foundation/regular_file.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

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
                          std::string_view kind) {
    const auto failure = [](std::string why) {
        return FileBytes{std::nullopt, std::move(why)};
    };
    const auto tooLarge = [&] {
        return failure("it is larger than " + sizeText(limit) + ", the most a " +
                       std::string(kind) + " may hold");
    };
    // The status comes from stat, which never waits on a pipe as opening it would.
    std::error_code ec;
    const auto status = std::filesystem::status(path, ec);
    if (ec) {
        return failure(ec.message());
    }
    if (std::filesystem::is_directory(status)) {
        return failure("it is a folder");
    }
    if (!std::filesystem::is_regular_file(status)) {
        return failure("it is not a file but a device, a pipe or a socket");
    }
    const std::uintmax_t size = std::filesystem::file_size(path, ec);
    if (ec) {
        return failure(ec.message());
    }
    if (size > limit) {
        return tooLarge();
    }
    std::unique_ptr<std::FILE, decltype(&std::fclose)> file(std::fopen(path.c_str(), "rb"),
                                                            &std::fclose);
    if (!file) {
        return failure(std::strerror(errno));
    }
    // One buffer of the file's size; a file that grows while it is read is followed up to the
    // limit.
    std::string bytes(static_cast<std::size_t>(size), '\0');
    bytes.resize(std::fread(bytes.data(), 1, bytes.size(), file.get()));
    if (bytes.size() == size) {
        char chunk[1 << 16];
        while (const std::size_t n = std::fread(chunk, 1, sizeof chunk, file.get())) {
            if (n > limit - bytes.size()) {
                return tooLarge();
            }
            bytes.append(chunk, n);
        }
    }
    if (std::ferror(file.get())) {
        return failure(std::strerror(errno));
    }
    return {std::move(bytes), {}};
}

} // namespace velmora
