#include "foundation/text.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <cstdint>
#include <cstring>
#include <unicode/locid.h>
#include <unicode/normalizer2.h>
#include <unicode/unistr.h>

namespace velmora::text {
namespace {

const icu::Normalizer2& nfc() {
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2* n = icu::Normalizer2::getNFCInstance(status);
    assert(U_SUCCESS(status) && n != nullptr);
    return *n;
}

std::string toUtf8(const icu::UnicodeString& u) {
    std::string out;
    u.toUTF8String(out);
    return out;
}

} // namespace

bool isAscii(std::string_view s) {
    return std::all_of(s.begin(), s.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

std::string normalized(std::string_view s) {
    if (isAscii(s)) {
        return std::string(s);
    }
    const auto u =
        icu::UnicodeString::fromUTF8(icu::StringPiece(s.data(), static_cast<int32_t>(s.size())));
    UErrorCode status = U_ZERO_ERROR;
    if (nfc().isNormalized(u, status) && U_SUCCESS(status)) {
        return std::string(s);
    }
    status = U_ZERO_ERROR;
    const icu::UnicodeString n = nfc().normalize(u, status);
    return U_SUCCESS(status) ? toUtf8(n) : std::string(s);
}

bool equals(std::string_view a, std::string_view b) {
    if (a == b) {
        return true;
    }
    if (isAscii(a) && isAscii(b)) {
        return false;
    }
    return normalized(a) == normalized(b);
}

int compare(std::string_view a, std::string_view b) {
    // UTF-8 byte order is scalar value order, so comparing the normalized bytes is enough.
    if (isAscii(a) && isAscii(b)) {
        return a.compare(b);
    }
    return normalized(a).compare(normalized(b));
}

std::string lowercased(std::string_view s) {
    if (isAscii(s)) {
        std::string out(s);
        std::transform(out.begin(), out.end(), out.begin(), [](char c) {
            return (c >= 'A' && c <= 'Z') ? static_cast<char>(c + 32) : c;
        });
        return out;
    }
    auto u =
        icu::UnicodeString::fromUTF8(icu::StringPiece(s.data(), static_cast<int32_t>(s.size())));
    u.toLower(icu::Locale::getRoot());
    return toUtf8(u);
}

bool contains(std::string_view haystack, std::string_view needle) {
    if (isAscii(haystack) && isAscii(needle)) {
        return haystack.find(needle) != std::string_view::npos;
    }
    return normalized(haystack).find(normalized(needle)) != std::string::npos;
}

std::vector<std::string_view> splitLines(std::string_view s) {
    std::vector<std::string_view> lines;
    forEachLine(s, [&lines](std::string_view line) { lines.push_back(line); });
    return lines;
}

void forEachLine(std::string_view s, const std::function<void(std::string_view)>& line) {
    const auto* data = reinterpret_cast<const unsigned char*>(s.data());
    const std::size_t n = s.size();
    std::size_t start = 0;
    std::size_t i = 0;
    // Bytes that can begin a newline: LF VT FF CR, and the lead bytes of NEL, LS and PS.
    static constexpr auto mayBreak = [] {
        std::array<bool, 256> t{};
        t[0x0A] = t[0x0B] = t[0x0C] = t[0x0D] = t[0xC2] = t[0xE2] = true;
        return t;
    }();
    while (i < n) {
        // Eight plain bytes at a time: none below 0x0E and none with the high bit set.
        if (i + 8 <= n) {
            std::uint64_t w;
            std::memcpy(&w, data + i, 8);
            constexpr std::uint64_t ones = 0x0101010101010101ULL;
            constexpr std::uint64_t highs = 0x8080808080808080ULL;
            if ((((w - ones * 0x0E) & ~w) & highs) == 0 && (w & highs) == 0) {
                i += 8;
                continue;
            }
        }
        const unsigned char c = data[i];
        if (!mayBreak[c]) {
            ++i;
            continue;
        }
        std::size_t width = 0;
        if (c >= 0x0A && c <= 0x0D) {
            width = 1;
        } else if (c == 0xC2 && i + 1 < n && data[i + 1] == 0x85) {
            width = 2;
        } else if (c == 0xE2 && i + 2 < n && data[i + 1] == 0x80 &&
                   (data[i + 2] == 0xA8 || data[i + 2] == 0xA9)) {
            width = 3;
        }
        if (width == 0) {
            ++i;
            continue;
        }
        line(s.substr(start, i - start));
        i += width;
        start = i;
    }
    line(s.substr(start));
}

std::string replaceAll(std::string_view s, std::string_view from, std::string_view to) {
    assert(!from.empty());
    std::string out;
    out.reserve(s.size());
    std::size_t pos = 0;
    for (std::size_t hit = s.find(from); hit != std::string_view::npos; hit = s.find(from, pos)) {
        out.append(s.substr(pos, hit - pos));
        out.append(to);
        pos = hit + from.size();
    }
    out.append(s.substr(pos));
    return out;
}

} // namespace velmora::text
