#pragma once

// Cuts a line of a small test table at a separator. (Not std::views::split, which clang-tidy's
// clang 14 cannot compile with this standard library.)

#include <string_view>
#include <vector>

namespace velmora::test {

// The pieces between separators, empty ones included; none for empty text.
inline std::vector<std::string_view> splitAt(std::string_view text, char separator) {
    std::vector<std::string_view> pieces;
    for (std::size_t start = 0; !text.empty();) {
        const std::size_t at = text.find(separator, start);
        pieces.push_back(text.substr(start, at - start));
        if (at == std::string_view::npos) {
            break;
        }
        start = at + 1;
    }
    return pieces;
}

} // namespace velmora::test
