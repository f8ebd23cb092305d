#include "data/text_decoding.h"

#include <gtest/gtest.h>
#include <sys/mman.h>

namespace velmora {
namespace {

// The text with its byte-order mark, in UTF-16 or UTF-32 of either byte order.
template <class Char> std::string marked(const std::basic_string<Char>& text, bool bigEndian) {
    std::string out;
    for (const char32_t c : U"\uFEFF" + std::u32string(text.begin(), text.end())) {
        for (std::size_t k = 0; k < sizeof(Char); ++k) {
            out += static_cast<char>(c >> 8 * (bigEndian ? sizeof(Char) - 1 - k : k));
        }
    }
    return out;
}

TEST(DecodeText, AMarkSelectsTheEncodingAndWithoutOneInvalidUtf8IsWindows1252) {
    // "Sphène", then a gem beyond the basic plane: a surrogate pair in UTF-16.
    const std::string sphene = "Sph\xC3\xA8ne \xF0\x9F\x92\x8E\n";
    const std::u16string utf16 = u"Sph\u00E8ne \xD83D\xDC8E\n";
    const std::u32string utf32 = U"Sph\u00E8ne \U0001F48E\n";
    // The converter works piece by piece: a text far longer than one piece comes out whole.
    std::u16string longUtf16;
    std::string longUtf8;
    for (int i = 0; i < 40000; ++i) {
        longUtf16 += utf16;
        longUtf8 += sphene;
    }
    const std::pair<std::string, std::string> cases[] = {
        {"Ruby,1\n", "Ruby,1\n"},
        {"\uFEFFSph\xC3\xA8ne", "Sph\xC3\xA8ne"},
        {marked(utf16, false), sphene},
        {marked(utf16, true), sphene},
        {marked(utf32, false), sphene},
        {marked(utf32, true), sphene},
        {marked(longUtf16, false), longUtf8},
        {"Beryl \xE9meraude \x80", "Beryl \xC3\xA9meraude \xE2\x82\xAC"},
        {"\xC0\xAF", "\xC3\x80\xC2\xAF"},                     // an overlong "/" is no UTF-8
        {"abcdefgh\xE2\x80", "abcdefgh\xC3\xA2\xE2\x82\xAC"}, // nor a cut character
        {"ascii of more than eight bytes \xE2\x80\xA8",
         "ascii of more than eight bytes \xE2\x80\xA8"},
        {"\xED\xA0\x80", "\xC3\xAD\xC2\xA0\xE2\x82\xAC"}, // nor is a surrogate
        // Characters of one, two and three bytes in every order, made in place from the end.
        {std::string("\x80\x80") + "a\xE9\x80\xFF" + std::string(9, 'b') + "\xE9",
         std::string("\xE2\x82\xAC\xE2\x82\xAC") + "a\xC3\xA9\xE2\x82\xAC\xC3\xBF" +
             std::string(9, 'b') + "\xC3\xA9"},
    };
    for (const auto& [bytes, text] : cases) {
        EXPECT_EQ(decodeText(bytes).text, text) << bytes.substr(0, 40);
        // The same within a buffer with room for the text, as a file is read.
        std::string roomy = bytes;
        roomy.reserve(bytes.size() * windows1252Growth);
        EXPECT_EQ(decodeText(std::move(roomy)).text, text) << bytes.substr(0, 40);
    }
    // Broken text under a mark has no fallback.
    EXPECT_FALSE(decodeText(std::string{'\xFF', '\xFE', 'a'}).text);
    EXPECT_FALSE(decodeText("\xEF\xBB\xBF\xE9").text);
}

// Plain ASCII is skipped eight bytes at a time: each sequence is tried at every place within and
// across an eight-byte word, after a run long enough for the fast path.
TEST(IsValidUtf8, ASequenceIsJudgedWhereverItFallsAfterALongAsciiRun) {
    const std::string run(24, 'a');
    const std::pair<std::string, bool> sequences[] = {
        {"\xC3\xA9", true},          // é
        {"\xE2\x82\xAC", true},      // €
        {"\xF0\x9F\x92\x8E", true},  // a gem, beyond the basic plane
        {"\x80", false},             // a lone continuation byte
        {"\xC0\xAF", false},         // overlong
        {"\xED\xA0\x80", false},     // a surrogate
        {"\xF4\x90\x80\x80", false}, // beyond U+10FFFF
        {"\xFF", false},
        {"\xE2\x82", false}, // cut short by the ASCII after it
    };
    for (const auto& [sequence, valid] : sequences) {
        for (std::size_t at = 0; at <= run.size(); ++at) {
            std::string s = run.substr(0, at);
            s += sequence;
            s += run;
            EXPECT_EQ(isValidUtf8(s), valid) << "sequence of " << sequence.size() << " at " << at;
        }
        // Cut short by the end of the text.
        if (valid) {
            EXPECT_FALSE(isValidUtf8(run + sequence.substr(0, sequence.size() - 1)));
        }
    }
}

// A length of exactly 4 GiB is 0 in 32 bits: the text must still be read, from its first byte.
// The pages are reserved, not filled; only the first is touched.
TEST(IsValidUtf8, ALengthBeyond32BitsIsTakenWhole) {
    constexpr std::size_t length = std::size_t{1} << 32;
    void* pages = mmap(nullptr, length, PROT_READ | PROT_WRITE,
                       MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (pages == MAP_FAILED) {
        GTEST_SKIP() << "no 4 GiB of address space";
    }
    static_cast<char*>(pages)[0] = '\xFF';
    EXPECT_FALSE(isValidUtf8(std::string_view(static_cast<const char*>(pages), length)));
    munmap(pages, length);
}

} // namespace
} // namespace velmora
