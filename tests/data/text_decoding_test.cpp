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
        {marked(utf32, true), sphene},
        {marked(longUtf16, false), longUtf8},
        {"Beryl \xE9meraude \x80", "Beryl \xC3\xA9meraude \xE2\x82\xAC"},
        {"abcdefgh\xE2\x80", "abcdefgh\xC3\xA2\xE2\x82\xAC"}, // a cut character is no UTF-8
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

} // namespace
} // namespace velmora
