#pragma once

// The user's number conventions: the decimal separator typed in entries and shown in displays.

#include <string>

namespace velmora {

class Locale {
public:
    virtual ~Locale() = default;
    // Empty when the locale gives none; callers fall back to ".".
    virtual std::string decimalSeparator() const = 0;
};

// Fixed conventions: the command line's --decimal-separator, the environment's as read at
// start, and the tests.
class FixedLocale final : public Locale {
public:
    explicit FixedLocale(std::string decimal = ".") : decimal_(std::move(decimal)) {}
    std::string decimalSeparator() const override { return decimal_; }

private:
    std::string decimal_;
};

} // namespace velmora
