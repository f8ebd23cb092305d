#pragma once

// The characters a numeric entry accepts: the ten ASCII digits and those of the decimal
// separator, in any number and order. "1.2.3" passes; reading it as a number is the search's
// business.

#include <string>
#include <string_view>

namespace velmora {

// What the user is told about an entry that is not a number.
inline constexpr const char* notANumberMessage = "Please insert number only!";

// True when every character (Unicode scalar) of text is a digit or one of separator's; the
// empty text passes.
bool isNumberOnly(std::string_view text, std::string_view separator);

// The separator the user is most likely to type by mistake: "," where the separator is ".",
// and "." everywhere else.
std::string foreignSeparator(std::string_view separator);

} // namespace velmora
