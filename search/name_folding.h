#pragma once

// Names compared as a user types them: without case and without accents, so "paraiba" finds
// "Paraíba" and "PARAÍBA" alike.

#include <string>
#include <string_view>

namespace velmora {

// Case-folded, decomposed, stripped of combining marks, recomposed.
std::string foldedName(std::string_view name);

// True when needle, folded, stands in haystack, folded. The empty needle stands in every name.
bool nameContains(std::string_view haystack, std::string_view foldedNeedle);

// The same for a haystack known to be plain ASCII, which folds to its lower case.
bool asciiNameContains(std::string_view haystack, std::string_view foldedNeedle);

} // namespace velmora
