#pragma once

// Texts through Qt's translation functions: the translations installed in the application, if
// any, else the English text.

#include "app/localized_strings.h"

namespace velmora::qt {

class QtLocalizedStrings final : public LocalizedStrings {
public:
    // context: the translation context the texts belong to, such as "AppDelegate".
    explicit QtLocalizedStrings(const char* context) : context_(context) {}
    std::string localizedString(const std::string& key) const override;

private:
    const char* context_;
};

} // namespace velmora::qt
