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

// Fixed conventions: the command line's --decimal-separator, and the tests.
class FixedLocale final : public Locale {
public:
    explicit FixedLocale(std::string decimal = ".") : decimal_(std::move(decimal)) {}
    std::string decimalSeparator() const override { return decimal_; }

private:
    std::string decimal_;
};

// The conventions of the process environment's LC_NUMERIC (LC_ALL, LC_NUMERIC, LANG), read without
// touching the process-wide C locale.
class EnvironmentLocale final : public Locale {
public:
    EnvironmentLocale();
    std::string decimalSeparator() const override { return decimal_; }

private:
    std::string decimal_;
};

} // namespace velmora
