#pragma once

// The user's number conventions: the decimal separator typed in entries and shown in displays,
// and the grouping separator of long numbers.

#include <string>

namespace velmora {

class Locale {
public:
    virtual ~Locale() = default;
    // Empty when the locale gives none; callers fall back to ".".
    virtual std::string decimalSeparator() const = 0;
    virtual std::string groupingSeparator() const = 0;
};

// Fixed conventions: the command line's --decimal-separator, the environment's as read at
// start, and the tests.
class FixedLocale final : public Locale {
public:
    explicit FixedLocale(std::string decimal = ".", std::string grouping = ",")
        : decimal_(std::move(decimal)), grouping_(std::move(grouping)) {}
    std::string decimalSeparator() const override { return decimal_; }
    std::string groupingSeparator() const override { return grouping_; }

private:
    std::string decimal_;
    std::string grouping_;
};

} // namespace velmora
