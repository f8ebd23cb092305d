#include "foundation/text.h"

#include <gtest/gtest.h>

namespace velmora::text {
namespace {

// Containing is checked where names are searched for, ordering where they are ordered.
TEST(Text, CanonicallyEquivalentFormsAreEqual) {
    EXPECT_TRUE(equals("Sph\xC3\xA8ne", "Sphe\xCC\x80ne"));
    EXPECT_FALSE(equals("Ruby", "ruby"));
}

TEST(Text, LowerCasingIsTheFullMappingWhateverTheLocale) {
    EXPECT_EQ(lowercased("RUBY Star"), "ruby star");
    EXPECT_EQ(lowercased("\xC3\x89MERAUDE"), "\xC3\xA9meraude");   // É
    EXPECT_EQ(lowercased("I"), "i");                               // no Turkish dotless i
    EXPECT_EQ(lowercased("\xC4\xB0"), "i\xCC\x87");                // İ maps to i + dot above
    EXPECT_EQ(lowercased("\xCE\xA3\xCE\x91"), "\xCF\x83\xCE\xB1"); // ΣΑ
}

TEST(Text, CrLfIsTwoNewlinesAndACutNewlineNone) {
    // CR LF is two; a lone lead byte of NEL or LS at the very end is none.
    EXPECT_EQ(splitLines("a\r\nb\n"), (std::vector<std::string_view>{"a", "", "b", ""}));
    EXPECT_EQ(splitLines("a\xC2").size(), 1u);
    EXPECT_EQ(splitLines("a\xE2\x80").size(), 1u);
}

// The scan skips eight plain bytes at a time, so every newline is tried at every place within and
// across an eight-byte word, with plain text around it long enough for the fast path to run.
TEST(Text, ANewlineIsFoundWhereverItFallsInALongLine) {
    const std::string before(24, 'x');
    const std::string after(17, 'y');
    for (const std::string nl :
         {"\n", "\v", "\f", "\r", "\xC2\x85", "\xE2\x80\xA8", "\xE2\x80\xA9"}) {
        for (std::size_t at = 0; at <= before.size(); ++at) {
            std::string s = before.substr(0, at);
            s += nl;
            s += after;
            EXPECT_EQ(splitLines(s), (std::vector<std::string_view>{before.substr(0, at), after}))
                << "newline of " << nl.size() << " bytes at " << at;
        }
    }
}

TEST(Text, LongLinesCutOnlyAtNewlines) {
    const struct {
        std::string text;
        std::vector<std::string_view> lines;
    } cases[] = {
        // Old Mac line ends: lone CRs, at offsets 5, 13 and 26.
        {"Ruby,\rSapphire,\rRock crystal,\rX", {"Ruby,", "Sapphire,", "Rock crystal,", "X"}},
        // CR at the end of one eight-byte word, LF at the start of the next.
        {"1234567\r\n89abcdefgh", {"1234567", "", "89abcdefgh"}},
        // Characters that only look like the start of a newline: no cut.
        {"1234567\u00E989abcdefgh", {"1234567\u00E989abcdefgh"}},
        // Control bytes beside the newlines' range, a TAB and DEL: no cut.
        {"12345678\x0E\x09\x1F\1779abcdefghi", {"12345678\x0E\x09\x1F\1779abcdefghi"}},
        // A newline in the very last byte of a long text gives an empty last line.
        {"0123456789abcdef\n", {"0123456789abcdef", ""}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(splitLines(c.text), c.lines) << c.text;
    }
}

} // namespace
} // namespace velmora::text
