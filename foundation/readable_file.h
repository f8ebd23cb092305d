#pragma once

// A file opened for reading without waiting on it: a pipe with no writer or a device opens at
// once. What the file is, and its size, come from the open file itself, so nothing swapped in
// at the path after a look at it is read in its place.

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace velmora {

class ReadableFile {
public:
    enum class Kind { Regular, Folder, Other };

    explicit ReadableFile(const std::filesystem::path& path);
    ReadableFile(const ReadableFile&) = delete;
    ReadableFile& operator=(const ReadableFile&) = delete;
    ~ReadableFile();

    bool isOpen() const { return handle_ >= 0; }
    Kind kind() const { return kind_; }
    std::uintmax_t size() const { return size_; }
    // Why the file could not be opened, or the last read failed.
    const std::string& error() const { return error_; }

    // Up to size bytes into buffer: how many, 0 at the end, nothing when the read fails.
    std::optional<std::size_t> read(char* buffer, std::size_t size);

private:
    int handle_ = -1;
    Kind kind_ = Kind::Other;
    std::uintmax_t size_ = 0;
    std::string error_;
};

} // namespace velmora
