#include "data/text_decoding.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

std::string utf16(const std::u16string& s, bool bigEndian) {
    std::string out = bigEndian ? "\xFE\xFF" : "\xFF\xFE";
    for (const char16_t c : s) {
        const char hi = static_cast<char>(c >> 8);
        const char lo = static_cast<char>(c & 0xFF);
        out += bigEndian ? std::string{hi, lo} : std::string{lo, hi};
    }
    return out;
}

std::string utf32(const std::u32string& s, bool bigEndian) {
    std::string out =
        bigEndian ? std::string("\x00\x00\xFE\xFF", 4) : std::string("\xFF\xFE\x00\x00", 4);
    for (const char32_t c : s) {
        for (int k = 0; k < 4; ++k) {
            const int shift = bigEndian ? 24 - 8 * k : 8 * k;
            out += static_cast<char>((c >> shift) & 0xFF);
        }
    }
    return out;
}

TEST(DecodeText, PlainUtf8PassesThroughAndItsMarkIsDropped) {
    EXPECT_EQ(decodeText("Ruby,1\n").text, "Ruby,1\n");
    EXPECT_EQ(decodeText("\xEF\xBB\xBFSph\xC3\xA8ne").text, "Sph\xC3\xA8ne");
}

TEST(DecodeText, ByteOrderMarksSelectUtf16AndUtf32OfEitherOrder) {
    const std::string expected =
        "Sph\xC3\xA8ne \xF0\x9F\x92\x8E\n"; // with a gem emoji beyond the BMP
    EXPECT_EQ(decodeText(utf16(u"Sph\u00E8ne \U0001F48E\n", false)).text, expected);
    EXPECT_EQ(decodeText(utf16(u"Sph\u00E8ne \U0001F48E\n", true)).text, expected);
    EXPECT_EQ(decodeText(utf32(U"Sph\u00E8ne \U0001F48E\n", false)).text, expected);
    EXPECT_EQ(decodeText(utf32(U"Sph\u00E8ne \U0001F48E\n", true)).text, expected);
}

TEST(DecodeText, InvalidUtf8WithoutMarkIsReadAsWindows1252) {
    EXPECT_EQ(decodeText("Beryl \xE9meraude \x80").text, "Beryl \xC3\xA9meraude \xE2\x82\xAC");
    EXPECT_EQ(decodeText("\xC3\xA9").text, "\xC3\xA9"); // valid UTF-8 stays UTF-8
}

TEST(DecodeText, BrokenMarkedTextIsAnErrorWithADescription) {
    const auto oddUtf16 = decodeText(std::string("\xFF\xFE"
                                                 "a",
                                                 3));
    EXPECT_FALSE(oddUtf16.text);
    EXPECT_FALSE(oddUtf16.error.empty());
    EXPECT_FALSE(decodeText("\xEF\xBB\xBF\xE9").text);
}

TEST(DecodeText, Utf8ValidationRejectsOverlongsSurrogatesAndTruncation) {
    EXPECT_TRUE(isValidUtf8("plain ascii longer than eight bytes \xE2\x80\xA8 and more"));
    EXPECT_FALSE(isValidUtf8("\xC0\xAF"));         // overlong "/"
    EXPECT_FALSE(isValidUtf8("\xED\xA0\x80"));     // a surrogate
    EXPECT_FALSE(isValidUtf8("abcdefgh\xE2\x80")); // cut short
}

} // namespace
} // namespace velmora
