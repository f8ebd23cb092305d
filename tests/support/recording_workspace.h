#pragma once

// Records the web addresses and mail messages the application asks the desktop to open.

#include "app/workspace.h"

#include <vector>

namespace velmora::test {

struct MailRequest {
    std::string recipient;
    std::string subject;
    std::string body;
    bool operator==(const MailRequest&) const = default;
};

class RecordingWorkspace final : public Workspace {
public:
    void openUrl(const std::string& url) override { openedUrls.push_back(url); }
    void composeMail(const std::string& recipient, const std::string& subject,
                     const std::string& body) override {
        mails.push_back({recipient, subject, body});
    }

    std::vector<std::string> openedUrls;
    std::vector<MailRequest> mails;
};

} // namespace velmora::test
