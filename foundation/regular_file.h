#pragma once

// Reading a whole file the user named. Only a regular file is read: a folder, a pipe with no
// writer or a device such as /dev/zero is refused from the status of the file as opened, before
// anything is read, and a file larger than the caller's limit is refused before any memory is
// taken for it.

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace velmora {

struct FileBytes {
    std::optional<std::string> bytes;
    std::string error; // why there are no bytes, a clause such as "it is a folder"
};

// kind names the file in the size clause: "it is larger than 64 MiB, the most a <kind> may hold".
// The bytes come with capacity for growth times their size, for a caller that makes its text in
// place; the room is left untouched, so it takes no memory until it is used.
FileBytes readRegularFile(const std::filesystem::path& path, std::size_t limit,
                          std::string_view kind, std::size_t growth = 1);

// "64 MiB", "512 KiB", "100 bytes".
std::string sizeText(std::size_t bytes);

} // namespace velmora
