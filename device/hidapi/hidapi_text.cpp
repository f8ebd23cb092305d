#include "device/hidapi/hidapi_text.h"

#include <unicode/unistr.h>

namespace velmora::hidapi {

// wchar_t holds UTF-32 on the platforms hidraw runs on.
std::optional<std::string> utf8(const wchar_t* wide) {
    if (wide == nullptr || *wide == L'\0') {
        return std::nullopt;
    }
    static_assert(sizeof(wchar_t) == sizeof(UChar32));
    std::string text;
    icu::UnicodeString::fromUTF32(reinterpret_cast<const UChar32*>(wide), -1).toUTF8String(text);
    return text;
}

} // namespace velmora::hidapi
