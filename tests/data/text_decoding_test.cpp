#include "data/text_decoding.h"

#include <gtest/gtest.h>

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
    const std::pair<std::string, std::string> cases[] = {
        {"Ruby,1\n", "Ruby,1\n"},
        {"\xEF\xBB\xBF"
         "Sph\xC3\xA8ne",
         "Sph\xC3\xA8ne"},
        {marked(utf16, false), sphene},
        {marked(utf16, true), sphene},
        {marked(utf32, false), sphene},
        {marked(utf32, true), sphene},
        {"Beryl \xE9meraude \x80", "Beryl \xC3\xA9meraude \xE2\x82\xAC"},
        {"\xC0\xAF", "\xC3\x80\xC2\xAF"},                     // an overlong "/" is no UTF-8
        {"abcdefgh\xE2\x80", "abcdefgh\xC3\xA2\xE2\x82\xAC"}, // nor a cut character
        {"ascii of more than eight bytes \xE2\x80\xA8",
         "ascii of more than eight bytes \xE2\x80\xA8"},
        {"\xED\xA0\x80", "\xC3\xAD\xC2\xA0\xE2\x82\xAC"}, // nor is a surrogate
    };
    for (const auto& [bytes, text] : cases) {
        EXPECT_EQ(decodeText(bytes).text, text) << bytes;
    }
    // Broken text under a mark has no fallback.
    EXPECT_FALSE(decodeText(std::string("\xFF\xFE"
                                        "a",
                                        3))
                     .text);
    EXPECT_FALSE(decodeText("\xEF\xBB\xBF\xE9").text);
}

} // namespace
} // namespace velmora
