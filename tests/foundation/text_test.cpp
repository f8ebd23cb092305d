#include "foundation/text.h"

#include <gtest/gtest.h>

namespace velmora::text {
namespace {

const std::string ePrecomposed = "\xC3\xA9"; // é as one code point
const std::string eDecomposed = "e\xCC\x81"; // e + combining acute

TEST(TextEquality, CanonicallyEquivalentFormsAreEqual) {
    EXPECT_TRUE(equals("Beryll" + ePrecomposed, "Beryll" + eDecomposed));
    EXPECT_EQ(compare("Sph" + ePrecomposed + "ne", "Sph" + eDecomposed + "ne"), 0);
    EXPECT_FALSE(equals("Ruby", "ruby"));
    EXPECT_FALSE(equals("e", ePrecomposed));
}

TEST(TextOrdering, ScalarValueOrderCaseSensitive) {
    EXPECT_LT(compare("Zircon", "agate"), 0);   // upper case before lower case
    EXPECT_LT(compare("9", "A"), 0);            // digits before letters
    EXPECT_LT(compare("Ruby", "Ruby star"), 0); // a prefix first
    EXPECT_LT(compare(" Zircon", "Agate"), 0);  // a leading space sorts first
    // "é" (U+00E9) sorts after "z" whatever form it was written in.
    EXPECT_GT(compare(eDecomposed, "z"), 0);
    EXPECT_GT(compare(ePrecomposed, "z"), 0);
}

TEST(TextLowercase, FullDefaultMappingIndependentOfLocale) {
    EXPECT_EQ(lowercased("RUBY Star"), "ruby star");
    EXPECT_EQ(lowercased("\xC3\x89MERAUDE"), "\xC3\xA9meraude");   // É
    EXPECT_EQ(lowercased("I"), "i");                               // no Turkish dotless i
    EXPECT_EQ(lowercased("\xC4\xB0"), "i\xCC\x87");                // İ maps to i + dot above
    EXPECT_EQ(lowercased("\xCE\xA3\xCE\x91"), "\xCF\x83\xCE\xB1"); // ΣΑ
}

TEST(TextContains, SubstringAfterNormalization) {
    EXPECT_TRUE(contains("ruby", "ub"));
    EXPECT_TRUE(contains("ruby", ""));
    EXPECT_FALSE(contains("ruby", "ruby "));
    EXPECT_TRUE(contains("sph" + eDecomposed + "ne", "h" + ePrecomposed));
}

TEST(TextLines, EachOfTheSevenNewlinesCutsOnItsOwn) {
    const std::vector<std::string> breaks = {"\n",       "\v",           "\f",          "\r",
                                             "\xC2\x85", "\xE2\x80\xA8", "\xE2\x80\xA9"};
    for (const auto& nl : breaks) {
        const std::string text = "a" + nl + "b";
        const auto lines = splitLines(text);
        ASSERT_EQ(lines.size(), 2u) << "newline of " << nl.size() << " bytes";
        EXPECT_EQ(lines[0], "a");
        EXPECT_EQ(lines[1], "b");
    }
}

TEST(TextLines, CrLfGivesAnEmptyLineAndATrailingNewlineAnEmptyLast) {
    const auto lines = splitLines("a\r\nb\n");
    ASSERT_EQ(lines.size(), 4u);
    EXPECT_EQ(lines[1], "");
    EXPECT_EQ(lines[3], "");
    EXPECT_EQ(splitLines("").size(), 1u);
    // A lone lead byte of NEL or LS at the very end is not a newline.
    EXPECT_EQ(splitLines("a\xC2").size(), 1u);
    EXPECT_EQ(splitLines("a\xE2\x80").size(), 1u);
}

TEST(TextReplace, ReplacesEveryOccurrence) {
    EXPECT_EQ(replaceAll("1,5,4", ",", "."), "1.5.4");
    EXPECT_EQ(replaceAll("a^b^", "^", ", "), "a, b, ");
    EXPECT_EQ(replaceAll("none", ",", "."), "none");
}

} // namespace
} // namespace velmora::text
