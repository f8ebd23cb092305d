#pragma once

// A fresh folder under the system's temporary folder, removed with everything in it at the end of
// the test.

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>

namespace velmora::test {

class TempDir {
public:
    TempDir() {
        auto pattern = (std::filesystem::temp_directory_path() / "velmora-test-XXXXXX").string();
        if (mkdtemp(pattern.data()) == nullptr) {
            throw std::runtime_error("cannot create a temporary folder");
        }
        path_ = pattern;
    }
    ~TempDir() {
        std::error_code ec;
        std::filesystem::remove_all(path_, ec);
    }
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    const std::filesystem::path& path() const { return path_; }

    // Writes the bytes to a file in the folder and returns its path.
    std::filesystem::path write(const std::string& name, std::string_view bytes) const {
        const auto file = path_ / name;
        std::ofstream(file, std::ios::binary)
            .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        return file;
    }

private:
    std::filesystem::path path_;
};

} // namespace velmora::test
