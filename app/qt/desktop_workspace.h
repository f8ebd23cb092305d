#pragma once

// The browser and the mail program that the desktop chose for the user.

#include "app/workspace.h"

namespace velmora::qt {

class DesktopWorkspace final : public Workspace {
public:
    void openUrl(const std::string& url) override;
    void composeMail(const std::string& recipient, const std::string& subject,
                     const std::string& body) override;
};

} // namespace velmora::qt
