#pragma once

// Names compared as a user types them: without case and without accents, so "paraiba" finds
// "Paraíba" and "PARAÍBA" alike.

#include <string>
#include <string_view>

namespace velmora {

// Case-folded, decomposed, stripped of combining marks, recomposed.
std::string foldedName(std::string_view name);

// True when the folded needle stands in haystack, a plain ASCII name, which folds to its lower
// case. The empty needle stands in every name.
bool asciiNameContains(std::string_view haystack, std::string_view foldedNeedle);

} // namespace velmora
