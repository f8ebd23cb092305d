#pragma once

// Turns the bytes of a text file into UTF-8. A byte-order mark selects UTF-8, UTF-16 or UTF-32 of
// either byte order and is dropped. Without a mark the file is UTF-8 when it is valid UTF-8, and
// Windows-1252 otherwise: that is how spreadsheet programs on Western Windows save CSV, and the
// reference table is edited in one.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace velmora {

struct DecodedText {
    std::optional<std::string> text; // UTF-8, without the byte-order mark
    std::string error;               // why there is no text
};

// Text in Windows-1252 is made within the bytes' own buffer, in place when its capacity holds
// windows1252Growth times their size.
DecodedText decodeText(std::string bytes);

// The most bytes of UTF-8 that one byte of Windows-1252 becomes.
inline constexpr std::size_t windows1252Growth = 3;

bool isValidUtf8(std::string_view bytes);

} // namespace velmora
