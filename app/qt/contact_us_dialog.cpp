#include "app/qt/contact_us_dialog.h"

#include "ui/qt/view_binding.h"
#include "ui_contact_us.h"

namespace velmora::qt {

ContactUsDialog::ContactUsDialog(Workspace& workspace, QWidget* parent)
    : QDialog(parent), form_(std::make_unique<Ui::ContactUsForm>()), controller_(workspace) {
    form_->setupUi(this);
    viewBinding_ = std::make_unique<ViewBinding>(controller_.view, form_->view);
    viewBinding_->refresh();
    connect(form_->visitWebsite, &QPushButton::clicked, this,
            [this] { controller_.openWebsite(); });
    connect(form_->btn_mail, &QPushButton::clicked, this, [this] { controller_.openMail(); });
    controller_.viewDidLoad();
    setWindowTitle(QString::fromStdString(controller_.title()));
}

ContactUsDialog::~ContactUsDialog() = default;

} // namespace velmora::qt
