#pragma once

// A fresh folder under the system's temporary folder, removed with everything in it at the end of
// the test.

#include <filesystem>
#include <string_view>

namespace velmora::test {

class TempDir {
public:
    TempDir();
    ~TempDir();
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    const std::filesystem::path& path() const { return path_; }
    // Writes the bytes to a file in the folder and returns its path.
    std::filesystem::path write(const std::string& name, std::string_view bytes) const;

private:
    std::filesystem::path path_;
};

} // namespace velmora::test
