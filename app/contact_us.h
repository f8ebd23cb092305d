#pragma once

// The contact screen: the maker's website in the browser, or a new message to technical support
// in the mail program.

#include "app/support_contact.h"
#include "app/workspace.h"
#include "ui/button.h"
#include "ui/view.h"

#include <string>

namespace velmora {

class ContactUs {
public:
    // The screen's title, and the subject of the message.
    static constexpr const char* screenTitle = "Technical Support";

    explicit ContactUs(Workspace& workspace, SupportContact contact = makerSupport());

    void viewDidLoad();
    void openWebsite();
    void openMail();

    const std::string& title() const { return title_; }

    View view;
    Button visitWebsite;

private:
    Workspace& workspace_;
    SupportContact contact_;
    std::string title_;
};

} // namespace velmora
