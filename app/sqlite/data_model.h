#pragma once

// The data model resource as the steps from one version to the next: a line "-- version N"
// starts the SQL of step N, which makes version N of version N - 1.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

// steps[0] is version 1's. Nothing when the versions do not run 1, 2, 3, ... or there is none.
std::optional<std::vector<std::string>> dataModelSteps(std::string_view model);

} // namespace velmora
