#include "foundation/text.h"

#include <gtest/gtest.h>

namespace velmora::text {
namespace {

const std::string ePrecomposed = "\xC3\xA9"; // é as one code point
const std::string eDecomposed = "e\xCC\x81"; // e + combining acute

// The order of names is checked where names are ordered, in the reference file's tests.
TEST(Text, CanonicallyEquivalentFormsAreEqualAndContainEachOther) {
    EXPECT_TRUE(equals("Beryll" + ePrecomposed, "Beryll" + eDecomposed));
    EXPECT_FALSE(equals("Ruby", "ruby"));
    EXPECT_TRUE(equals("Sph" + ePrecomposed + "ne", "Sph" + eDecomposed + "ne"));
    EXPECT_TRUE(contains("sph" + eDecomposed + "ne", "h" + ePrecomposed));
}

TEST(Text, LowerCasingIsTheFullMappingWhateverTheLocale) {
    EXPECT_EQ(lowercased("RUBY Star"), "ruby star");
    EXPECT_EQ(lowercased("\xC3\x89MERAUDE"), "\xC3\xA9meraude");   // É
    EXPECT_EQ(lowercased("I"), "i");                               // no Turkish dotless i
    EXPECT_EQ(lowercased("\xC4\xB0"), "i\xCC\x87");                // İ maps to i + dot above
    EXPECT_EQ(lowercased("\xCE\xA3\xCE\x91"), "\xCF\x83\xCE\xB1"); // ΣΑ
}

TEST(Text, EachOfTheSevenNewlinesCutsALineOnItsOwn) {
    for (const std::string nl :
         {"\n", "\v", "\f", "\r", "\xC2\x85", "\xE2\x80\xA8", "\xE2\x80\xA9"}) {
        EXPECT_EQ(splitLines("a" + nl + "b"), (std::vector<std::string_view>{"a", "b"}))
            << "newline of " << nl.size() << " bytes";
    }
    // CR LF is two; a lone lead byte of NEL or LS at the very end is none.
    EXPECT_EQ(splitLines("a\r\nb\n"), (std::vector<std::string_view>{"a", "", "b", ""}));
    EXPECT_EQ(splitLines("a\xC2").size(), 1u);
    EXPECT_EQ(splitLines("a\xE2\x80").size(), 1u);
}

} // namespace
} // namespace velmora::text
