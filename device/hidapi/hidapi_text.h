#pragma once

// hidapi's strings are wide; the rest of the system speaks UTF-8.

#include <optional>
#include <string>

namespace velmora::hidapi {

// None for a missing or empty string.
std::optional<std::string> utf8(const wchar_t* wide);

} // namespace velmora::hidapi
