#include "search/name_folding.h"

#include "foundation/text.h"

#include <algorithm>
#include <cassert>
#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

namespace velmora {

std::string foldedName(std::string_view name) {
    if (text::isAscii(name)) {
        return text::lowercased(name);
    }
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2* nfd = icu::Normalizer2::getNFDInstance(status);
    assert(U_SUCCESS(status) && nfd != nullptr);
    auto u = icu::UnicodeString::fromUTF8(
        icu::StringPiece(name.data(), static_cast<int32_t>(name.size())));
    u.foldCase();
    const icu::UnicodeString decomposed = nfd->normalize(u, status);
    icu::UnicodeString bare;
    for (int32_t i = 0; i < decomposed.length();) {
        const UChar32 c = decomposed.char32At(i);
        if (u_charType(c) != U_NON_SPACING_MARK) {
            bare.append(c);
        }
        i += U16_LENGTH(c);
    }
    std::string out;
    bare.toUTF8String(out);
    return text::normalized(out);
}

bool asciiNameContains(std::string_view haystack, std::string_view foldedNeedle) {
    const auto lower = [](char c) {
        return (c >= 'A' && c <= 'Z') ? char(c + 32) : c;
    };
    return std::search(haystack.begin(), haystack.end(), foldedNeedle.begin(), foldedNeedle.end(),
                       [&](char a, char b) { return lower(a) == b; }) != haystack.end();
}

} // namespace velmora
