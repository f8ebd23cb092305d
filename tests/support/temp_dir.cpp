#include "tests/support/temp_dir.h"

#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <string>

namespace velmora::test {

TempDir::TempDir() {
    std::string pattern = (std::filesystem::temp_directory_path() / "velmora-test-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) {
        throw std::runtime_error("cannot create a temporary folder");
    }
    path_ = pattern;
}

TempDir::~TempDir() {
    std::error_code ec;
    std::filesystem::remove_all(path_, ec);
}

std::filesystem::path TempDir::write(const std::string& name, std::string_view bytes) const {
    const auto file = path_ / name;
    std::ofstream(file, std::ios::binary)
        .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return file;
}

} // namespace velmora::test
