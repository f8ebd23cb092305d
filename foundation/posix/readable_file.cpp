#include "foundation/readable_file.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace velmora {

ReadableFile::ReadableFile(const std::filesystem::path& path)
    : handle_(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY)) {
    if (handle_ < 0) {
        error_ = std::strerror(errno);
        return;
    }
    struct stat status {};
    if (::fstat(handle_, &status) != 0) {
        error_ = std::strerror(errno);
        ::close(handle_);
        handle_ = -1;
        return;
    }
    kind_ = S_ISREG(status.st_mode)   ? Kind::Regular
            : S_ISDIR(status.st_mode) ? Kind::Folder
                                      : Kind::Other;
    size_ = static_cast<std::uintmax_t>(status.st_size);
}

ReadableFile::~ReadableFile() {
    if (handle_ >= 0) {
        ::close(handle_);
    }
}

std::optional<std::size_t> ReadableFile::read(char* buffer, std::size_t size) {
    for (;;) {
        const ssize_t n = ::read(handle_, buffer, size);
        if (n >= 0) {
            return static_cast<std::size_t>(n);
        }
        if (errno != EINTR) {
            error_ = std::strerror(errno);
            return std::nullopt;
        }
    }
}

} // namespace velmora
