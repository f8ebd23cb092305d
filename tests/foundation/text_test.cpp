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
    };
    for (const auto& c : cases) {
        EXPECT_EQ(splitLines(c.text), c.lines) << c.text;
    }
}

} // namespace
} // namespace velmora::text
