#include "foundation/printable.h"
#include "foundation/regular_file.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace velmora {
namespace {

using test::TempDir;

constexpr std::size_t limit = 1 << 20;

// Each of these would hang, grow without end or abort if it were read; the refusal comes from the
// status of the file as opened, which never waits on a pipe, before anything is read.
TEST(ReadRegularFile, RefusesWhatIsNoRegularFileOrTooLargeBeforeReadingIt) {
    TempDir dir;
    const auto fifo = dir.path() / "pipe";
    ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
    const auto sparse = dir.path() / "sparse.csv";
    dir.write("sparse.csv", "");
    std::filesystem::resize_file(sparse, std::uintmax_t{8} << 30); // 8 GiB of nothing
    const auto justOver = dir.write("over.csv", std::string(limit + 1, 'x'));
    const auto linkToPipe = dir.path() / "pipe.csv";
    std::filesystem::create_symlink(fifo, linkToPipe);
    const std::pair<std::filesystem::path, std::string> refused[] = {
        {dir.path(), "it is a folder"},
        {fifo, "it is not a file but a device, a pipe or a socket"},
        {linkToPipe, "it is not a file but a device, a pipe or a socket"},
        {sparse, "it is larger than 1 MiB, the most a table may hold"},
        {justOver, "it is larger than 1 MiB, the most a table may hold"},
        {dir.path() / "missing", "No such file or directory"},
    };
    for (const auto& [path, error] : refused) {
        const FileBytes file = readRegularFile(path, limit, "table");
        EXPECT_FALSE(file.bytes) << path;
        EXPECT_EQ(file.error, error) << path;
    }
}

TEST(ReadRegularFile, ReadsAFileUpToTheLimitWhole) {
    TempDir dir;
    const std::string bytes(limit, '\0');
    EXPECT_EQ(readRegularFile(dir.write("full", bytes), limit, "table").bytes, bytes);
    EXPECT_EQ(readRegularFile(dir.write("empty", ""), limit, "table").bytes, "");
}

TEST(Printable, WritesOutControlCharactersAndBrokenBytes) {
    const std::pair<std::string, std::string> cases[] = {
        {"Rock crystal", "Rock crystal"},
        {"Sph\xC3\xA8ne \xF0\x9F\x92\x8E", "Sph\xC3\xA8ne \xF0\x9F\x92\x8E"},
        // A terminal's title set and its screen cleared.
        {"\x1B]0;owned\x07\x1B[2J", "\\x1B]0;owned\\x07\\x1B[2J"},
        {std::string("a\0b\tc\r\nd\x7F", 9), "a\\x00b\\x09c\\x0D\\x0Ad\\x7F"},
        {"\u009B31m", "U+009B31m"}, // the C1 form of ESC [
        {"\xFF\xC3(", "\\xFF\\xC3("},
    };
    for (const auto& [raw, shown] : cases) {
        EXPECT_EQ(text::printable(raw), shown);
    }
}

TEST(Printable, AnExcerptIsShortAndSaysWhenItIsCut) {
    EXPECT_EQ(text::excerpt("1.544"), "1.544");
    EXPECT_EQ(text::excerpt(std::string(50 << 20, 'x')), std::string(40, 'x') + "...");
    EXPECT_EQ(text::excerpt("\x1B[2J\x1B[2J", 3), "\\x1B[2...");
    EXPECT_EQ(text::excerpt("\xC3\xA9\xC3\xA9\xC3\xA9", 2), "\xC3\xA9\xC3\xA9...");
}

} // namespace
} // namespace velmora
