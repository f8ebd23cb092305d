#pragma once

// Text as the whole system treats it: UTF-8 strings compared by canonical equivalence, ordered by
// Unicode scalar value after normalization, lower-cased with the locale-independent default
// mapping. Every comparison of names, colours and searches goes through here so that "é" typed
// precomposed and "é" stored decomposed are the same text everywhere.

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace velmora::text {

// Canonical composition (NFC). Text that is already NFC, ASCII in particular, is returned as is.
std::string normalized(std::string_view s);

// True when the two texts are canonically equivalent.
bool equals(std::string_view a, std::string_view b);

// Negative, zero or positive as a sorts before, equal to or after b: scalar value by scalar value
// after normalization, case-sensitive, with no locale collation. A prefix sorts first.
int compare(std::string_view a, std::string_view b);

// The full default lower-case mapping, the same in every locale (no Turkish dotless i).
std::string lowercased(std::string_view s);

// True when needle stands in haystack as a contiguous run, after normalization of both. The empty
// needle is contained in every text.
bool contains(std::string_view haystack, std::string_view needle);

// Cuts the text at every newline character, each on its own: LF, VT, FF, CR, NEL (U+0085),
// LINE SEPARATOR (U+2028) and PARAGRAPH SEPARATOR (U+2029). "a\r\nb" gives "a", "", "b"; a
// trailing newline gives an empty last line. The views point into the given text.
std::vector<std::string_view> splitLines(std::string_view s);

// The lines splitLines gives, handed one at a time to line without collecting them.
void forEachLine(std::string_view s, const std::function<void(std::string_view)>& line);

// Replaces every occurrence of from (non-empty) by to.
std::string replaceAll(std::string_view s, std::string_view from, std::string_view to);

bool isAscii(std::string_view s);

} // namespace velmora::text
