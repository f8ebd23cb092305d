#pragma once

// The checks of the three numeric entries as the user edits them. Each gives nothing when the
// text may stay, or the informative text of the warning after which the entry is emptied.

#include "search/number_entry.h"

#include <optional>
#include <string>
#include <string_view>

namespace velmora {

// After each change of the text: a foreign separator first, named by the window's own
// separator, then any character that is neither a digit nor the locale's current separator.
std::optional<std::string> typedEntryAlert(std::string_view text,
                                           const DecimalSeparators& separators);

// When editing ends: an empty text, or a character that is neither a digit nor the window's
// separator.
std::optional<std::string> finishedEntryAlert(std::string_view text,
                                              const DecimalSeparators& separators);

} // namespace velmora
