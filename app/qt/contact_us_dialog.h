#pragma once

// The contact screen on the desktop: resources/contact_us.ui, driven by ContactUs.

#include "app/contact_us.h"

#include <QDialog>
#include <memory>

namespace Ui {
class ContactUsForm;
}

namespace velmora::qt {

class ViewBinding;

class ContactUsDialog final : public QDialog {
public:
    ContactUsDialog(Workspace& workspace, QWidget* parent = nullptr);
    ~ContactUsDialog() override;

private:
    std::unique_ptr<Ui::ContactUsForm> form_;
    ContactUs controller_;
    std::unique_ptr<ViewBinding> viewBinding_;
};

} // namespace velmora::qt
