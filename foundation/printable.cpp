#include "foundation/printable.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>

namespace velmora::text {
namespace {

// The length of the well-formed UTF-8 sequence at the start of s, or 0.
std::size_t sequenceLength(std::string_view s) {
    const auto byte = [&s](std::size_t i) {
        return static_cast<std::uint8_t>(s[i]);
    };
    const std::uint8_t lead = byte(0);
    std::size_t length = 0;
    std::uint8_t low = 0x80;
    std::uint8_t high = 0xBF;
    if (lead < 0x80) {
        return 1;
    } else if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        length = 3;
        low = lead == 0xE0 ? 0xA0 : 0x80;  // no overlong form
        high = lead == 0xED ? 0x9F : 0xBF; // no surrogate
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4;
        low = lead == 0xF0 ? 0x90 : 0x80;
        high = lead == 0xF4 ? 0x8F : 0xBF; // nothing past U+10FFFF
    } else {
        return 0;
    }
    if (s.size() < length || byte(1) < low || byte(1) > high) {
        return 0;
    }
    for (std::size_t i = 2; i < length; ++i) {
        if (byte(i) < 0x80 || byte(i) > 0xBF) {
            return 0;
        }
    }
    return length;
}

void appendHex(std::string& out, const char* format, unsigned value) {
    char buffer[8];
    std::snprintf(buffer, sizeof buffer, format, value);
    out += buffer;
}

// Appends up to maxCharacters characters of s; returns how many bytes of s it used.
std::size_t appendPrintable(std::string& out, std::string_view s, std::size_t maxCharacters) {
    std::size_t i = 0;
    for (std::size_t n = 0; i < s.size() && n < maxCharacters; ++n) {
        const std::size_t length = sequenceLength(s.substr(i));
        const auto byte = static_cast<std::uint8_t>(s[i]);
        if (length == 0 || byte < 0x20 || byte == 0x7F) {
            appendHex(out, "\\x%02X", byte);
            ++i;
        } else if (byte == 0xC2 && static_cast<std::uint8_t>(s[i + 1]) < 0xA0) {
            appendHex(out, "U+%04X", static_cast<std::uint8_t>(s[i + 1]));
            i += 2;
        } else {
            out.append(s.substr(i, length));
            i += length;
        }
    }
    return i;
}

} // namespace

std::string printable(std::string_view s) {
    const bool plain = std::all_of(s.begin(), s.end(), [](char c) {
        const auto b = static_cast<std::uint8_t>(c);
        return b >= 0x20 && b < 0x7F;
    });
    if (plain) {
        return std::string(s);
    }
    std::string out;
    out.reserve(s.size());
    appendPrintable(out, s, s.size());
    return out;
}

std::string excerpt(std::string_view s, std::size_t maxCharacters) {
    std::string out;
    if (appendPrintable(out, s, maxCharacters) < s.size()) {
        out += "...";
    }
    return out;
}

} // namespace velmora::text
