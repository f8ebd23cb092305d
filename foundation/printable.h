#pragma once

// Text from a file or a device made safe to print on a terminal: a name or a line read from
// outside must not be able to move the cursor, clear the screen or set the window's title.

#include <cstddef>
#include <string>
#include <string_view>

namespace velmora::text {

// The text with every control character written out: C0 controls (TAB and line ends included)
// and DEL as \xNN, C1 controls as U+0080 to U+009F, and bytes that are not UTF-8 as \xNN. Any
// other character stays as it is.
std::string printable(std::string_view s);

// The first maxCharacters characters of the text, printable, followed by "..." when it is longer:
// how a message quotes a line of unknown length.
std::string excerpt(std::string_view s, std::size_t maxCharacters = 40);

} // namespace velmora::text
