#include "data/text_decoding.h"

#include <cstdint>
#include <cstring>
#include <memory>
#include <unicode/ucnv.h>
#include <unicode/ucnv_err.h>
#include <unicode/unistr.h>
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
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<UConverter, decltype(&ucnv_close)> converter(ucnv_open(encoding, &status),
                                                                 ucnv_close);
    // A broken sequence is a broken file, not something to paper over with replacement marks.
    ucnv_setToUCallBack(converter.get(), UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr,
                        &status);
    if (U_FAILURE(status)) {
        return {std::nullopt, std::string("No converter for ") + encoding};
    }
    // None of the encodings used here gives more UTF-16 units than it has bytes.
    const auto capacity = static_cast<int32_t>(bytes.size()) + 1;
    icu::UnicodeString decoded;
    UChar* buffer = decoded.getBuffer(capacity);
    const int32_t length = ucnv_toUChars(converter.get(), buffer, capacity, bytes.data(),
                                         static_cast<int32_t>(bytes.size()), &status);
    decoded.releaseBuffer(U_SUCCESS(status) ? length : 0);
    if (U_FAILURE(status)) {
        return {std::nullopt, std::string("the text is not valid ") + encoding};
    }
    std::string out;
    decoded.toUTF8String(out);
    return {std::move(out), {}};
}

} // namespace

bool isValidUtf8(std::string_view bytes) {
    const auto* s = reinterpret_cast<const uint8_t*>(bytes.data());
    const auto length = static_cast<int32_t>(bytes.size());
    int32_t i = 0;
    while (i < length) {
        // Plain ASCII, the bulk of the reference file, eight bytes at a time.
        if (i + 8 <= length) {
            uint64_t chunk;
            std::memcpy(&chunk, s + i, 8);
            if ((chunk & 0x8080808080808080ULL) == 0) {
                i += 8;
                continue;
            }
        }
        UChar32 c;
        U8_NEXT(s, i, length, c);
        if (c < 0) {
            return false;
        }
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
    return convert(bytes, "windows-1252");
}

} // namespace velmora
