#pragma once

// The desktop's own programs: the browser for a web address, the mail program for a new message.

#include <string>

namespace velmora {

class Workspace {
public:
    virtual ~Workspace() = default;
    virtual void openUrl(const std::string& url) = 0;
    // A new message to the one recipient, for the user to write and send.
    virtual void composeMail(const std::string& recipient, const std::string& subject,
                             const std::string& body) = 0;
};

} // namespace velmora
