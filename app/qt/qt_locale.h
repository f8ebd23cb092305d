#pragma once

// The user's number conventions as the desktop reports them.

#include "foundation/locale.h"

namespace velmora {

class QtSystemLocale final : public Locale {
public:
    std::string decimalSeparator() const override;
};

} // namespace velmora
