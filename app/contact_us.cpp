#include "app/contact_us.h"

#include "ui/system_colors.h"

namespace velmora {

ContactUs::ContactUs(Workspace& workspace, SupportContact contact)
    : workspace_(workspace), contact_(std::move(contact)) {}

void ContactUs::viewDidLoad() {
    title_ = screenTitle;
    view.setBackgroundColor(systemColors::white);
}

void ContactUs::openWebsite() {
    workspace_.openUrl(contact_.websiteUrl);
}

void ContactUs::openMail() {
    workspace_.composeMail(contact_.email, screenTitle, {});
}

} // namespace velmora
