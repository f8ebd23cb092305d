#pragma once

// The number conventions of the process environment's LC_NUMERIC (LC_ALL, LC_NUMERIC, LANG).

#include "foundation/locale.h"

#include <string>

namespace velmora {

// Read once, without touching the process-wide C locale.
class EnvironmentLocale final : public Locale {
public:
    EnvironmentLocale();
    std::string decimalSeparator() const override { return decimal_; }
    std::string groupingSeparator() const override { return grouping_; }

private:
    std::string decimal_;
    std::string grouping_;
};

} // namespace velmora
