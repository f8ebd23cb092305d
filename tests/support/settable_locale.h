#pragma once

// A locale whose decimal separator the test changes while the window runs, as a user does in
// the system settings.

#include "foundation/locale.h"

#include <string>

namespace velmora::test {

class SettableLocale final : public Locale {
public:
    explicit SettableLocale(std::string decimal) : decimal_(std::move(decimal)) {}
    void setDecimalSeparator(std::string decimal) { decimal_ = std::move(decimal); }
    std::string decimalSeparator() const override { return decimal_; }

private:
    std::string decimal_;
};

} // namespace velmora::test
