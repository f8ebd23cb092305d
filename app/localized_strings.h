#pragma once

// Texts in the user's language, looked up by their English text. Without a translation the
// English text is shown.

#include <string>

namespace velmora {

class LocalizedStrings {
public:
    virtual ~LocalizedStrings() = default;
    virtual std::string localizedString(const std::string& key) const = 0;
};

} // namespace velmora
