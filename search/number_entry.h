#pragma once

// The numeric entries of the search form: the characters they accept and how their text is read
// as a number. They accept the ten ASCII digits and those of the decimal separator, in any number
// and order: "1.2.3" passes as typed, and only reading it as a number refuses it.

#include <optional>
#include <string>
#include <string_view>

namespace velmora {

// What the user is told about an entry that is not a number.
inline constexpr const char* notANumberMessage = "Please insert number only!";

// The window's two decimal separators. The one the window started with reads the entries and
// names itself in the messages; typed characters are checked against the locale's as it is now.
// They differ only when the user changes the locale while the window is open.
struct DecimalSeparators {
    std::string decimalSeparator = ".";
    std::string currentDecimalSeparator = ".";
};

// True when every character (Unicode scalar) of text is a digit or one of separator's; the
// empty text passes.
bool isNumberOnly(std::string_view text, std::string_view separator);

// The separator the user is most likely to type by mistake: "," where the separator is ".",
// and "." everywhere else.
std::string foreignSeparator(std::string_view separator);

// True when text holds no foreignSeparator(separator).
bool usesOwnSeparator(std::string_view text, std::string_view separator);

// isNumberOnly with the separator the window started with.
bool hasOnlyNumberCharacters(std::string_view text, const DecimalSeparators& separators);

// The number an entry's text spells in the user's notation, or nothing: the characters are
// checked against the current separator, then the window's separator becomes "." and the whole
// text is read in the C notation.
std::optional<double> readEntryNumber(std::string_view text, const DecimalSeparators& separators);

} // namespace velmora
