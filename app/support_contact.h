#pragma once

// Where the maker's technical support is reached. The build sets the maker's own
// (VELMORA_WEBSITE_URL and VELMORA_SUPPORT_EMAIL).

#include <string>

namespace velmora {

struct SupportContact {
    std::string websiteUrl;
    std::string email;
};

SupportContact makerSupport();

} // namespace velmora
