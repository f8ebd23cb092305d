#include "data/text_decoding.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <memory>
#include <unicode/ucnv.h>
#include <unicode/ucnv_err.h>
#include <unicode/utf8.h>

namespace velmora {
namespace {

struct Bom {
    std::string_view mark;
    const char* encoding;
};

// UTF-32LE before UTF-16LE: its mark begins with the UTF-16LE one.
constexpr Bom boms[] = {
    {std::string_view("\xEF\xBB\xBF", 3), "UTF-8"},
    {std::string_view("\x00\x00\xFE\xFF", 4), "UTF-32BE"},
    {std::string_view("\xFF\xFE\x00\x00", 4), "UTF-32LE"},
    {std::string_view("\xFE\xFF", 2), "UTF-16BE"},
    {std::string_view("\xFF\xFE", 2), "UTF-16LE"},
};

DecodedText convert(std::string_view bytes, const char* encoding) {
    using Converter = std::unique_ptr<UConverter, decltype(&ucnv_close)>;
    UErrorCode status = U_ZERO_ERROR;
    Converter from(ucnv_open(encoding, &status), ucnv_close);
    Converter to(ucnv_open("UTF-8", &status), ucnv_close);
    // A broken sequence is a broken file, not something to paper over with replacement marks.
    ucnv_setToUCallBack(from.get(), UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
    if (U_FAILURE(status)) {
        return {std::nullopt, std::string("No converter for ") + encoding};
    }
    // Converted piece by piece through pointers, so no length is ever narrowed to ICU's 32 bits.
    std::string out;
    out.reserve(bytes.size());
    const char* source = bytes.data();
    const char* const sourceLimit = source + bytes.size();
    std::array<UChar, 1024> pivot;
    UChar* pivotSource = pivot.data();
    UChar* pivotTarget = pivot.data();
    std::array<char, 1 << 16> piece;
    bool reset = true;
    do {
        status = U_ZERO_ERROR;
        char* target = piece.data();
        ucnv_convertEx(to.get(), from.get(), &target, piece.data() + piece.size(), &source,
                       sourceLimit, pivot.data(), &pivotSource, &pivotTarget,
                       pivot.data() + pivot.size(), static_cast<UBool>(reset), UBool{1}, &status);
        reset = false;
        out.append(piece.data(), static_cast<std::size_t>(target - piece.data()));
    } while (status == U_BUFFER_OVERFLOW_ERROR);
    if (U_FAILURE(status)) {
        return {std::nullopt, std::string("the text is not valid ") + encoding};
    }
    return {std::move(out), {}};
}

// The UTF-8 form of every byte in Windows-1252, as ICU converts it; empty for a byte it has no
// character for.
const std::array<std::string, 256>& windows1252() {
    static const auto table = [] {
        std::array<std::string, 256> t;
        for (std::size_t b = 0; b < t.size(); ++b) {
            const char byte = static_cast<char>(b);
            t[b] = convert(std::string_view(&byte, 1), "windows-1252").text.value_or("");
        }
        return t;
    }();
    return table;
}

// One byte is one character, so the text is written from the end backward within the bytes' own
// buffer: the file and its text are never held at once, and when the buffer has room enough for
// the text (see decodeText) none is taken at all.
DecodedText fromWindows1252(std::string bytes) {
    const auto& table = windows1252();
    std::size_t size = 0;
    for (const char c : bytes) {
        const std::string& utf8 = table[static_cast<unsigned char>(c)];
        if (utf8.empty()) {
            return {std::nullopt, "the text is not valid windows-1252"};
        }
        size += utf8.size();
    }
    std::size_t from = bytes.size();
    bytes.resize(size);
    // Every character lands at or after its own byte, so none is written over before it is read.
    for (std::size_t to = size; from > 0;) {
        const std::string& utf8 = table[static_cast<unsigned char>(bytes[--from])];
        to -= utf8.size();
        std::memmove(bytes.data() + to, utf8.data(), utf8.size());
    }
    return {std::move(bytes), {}};
}

} // namespace

bool isValidUtf8(std::string_view bytes) {
    const auto* s = reinterpret_cast<const uint8_t*>(bytes.data());
    const std::size_t length = bytes.size();
    std::size_t i = 0;
    while (i < length) {
        // Plain ASCII, the bulk of the reference file, eight bytes at a time.
        if (length - i >= 8) {
            uint64_t chunk;
            std::memcpy(&chunk, s + i, 8);
            if ((chunk & 0x8080808080808080ULL) == 0) {
                i += 8;
                continue;
            }
        }
        // One character at a time through a window of at most four bytes, the longest sequence,
        // so that ICU's 32-bit offsets stay small however long the text.
        const auto window = static_cast<int32_t>(std::min<std::size_t>(length - i, 4));
        int32_t used = 0;
        UChar32 c;
        U8_NEXT(s + i, used, window, c);
        if (c < 0) {
            return false;
        }
        i += static_cast<std::size_t>(used);
    }
    return true;
}

DecodedText decodeText(std::string bytes) {
    const std::string_view all = bytes;
    for (const auto& bom : boms) {
        if (all.substr(0, bom.mark.size()) == bom.mark) {
            if (std::strcmp(bom.encoding, "UTF-8") != 0) {
                return convert(all.substr(bom.mark.size()), bom.encoding);
            }
            if (!isValidUtf8(all.substr(bom.mark.size()))) {
                return {std::nullopt, "the text is marked as UTF-8 but is not valid UTF-8"};
            }
            bytes.erase(0, bom.mark.size());
            return {std::move(bytes), {}};
        }
    }
    if (isValidUtf8(bytes)) {
        return {std::move(bytes), {}};
    }
    return fromWindows1252(std::move(bytes));
}

} // namespace velmora
