#include "app/sqlite/data_model.h"

#include <charconv>

namespace velmora {

std::optional<std::vector<std::string>> dataModelSteps(std::string_view model) {
    constexpr std::string_view marker = "-- version ";
    std::vector<std::string> steps;
    while (!model.empty()) {
        const auto end = model.find('\n');
        const std::string_view line = model.substr(0, end);
        model = end == std::string_view::npos ? std::string_view() : model.substr(end + 1);
        if (line.starts_with(marker)) {
            const std::string_view digits = line.substr(marker.size());
            std::size_t version = 0;
            const auto [rest, error] =
                std::from_chars(digits.data(), digits.data() + digits.size(), version);
            if (error != std::errc() || rest != digits.data() + digits.size() ||
                version != steps.size() + 1) {
                return std::nullopt;
            }
            steps.emplace_back();
        } else if (!steps.empty()) {
            steps.back().append(line).push_back('\n');
        }
    }
    if (steps.empty()) {
        return std::nullopt;
    }
    return steps;
}

} // namespace velmora
