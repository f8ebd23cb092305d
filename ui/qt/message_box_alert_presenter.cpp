#include "ui/qt/message_box_alert_presenter.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

namespace velmora::qt {
namespace {

QMessageBox::Icon iconOf(AlertStyle style) {
    switch (style) {
    case AlertStyle::Informational:
        return QMessageBox::Information;
    case AlertStyle::Critical:
        return QMessageBox::Critical;
    case AlertStyle::Warning:
        break;
    }
    return QMessageBox::Warning;
}

} // namespace

std::size_t MessageBoxAlertPresenter::runModal(const std::string& message,
                                               const std::string& informative, AlertStyle style,
                                               const std::vector<std::string>& buttons) {
    QMessageBox box(QApplication::activeWindow());
    box.setWindowModality(Qt::ApplicationModal);
    box.setIcon(iconOf(style));
    box.setText(QString::fromStdString(message));
    box.setInformativeText(QString::fromStdString(informative));
    // Room for a sentence on one or two lines, and no blank line for an empty message.
    box.setStyleSheet("QLabel#qt_msgbox_informativelabel { min-width: 300px; }");
    if (message.empty()) {
        if (auto* label = box.findChild<QLabel*>("qt_msgbox_label")) {
            label->hide();
        }
    }
    std::vector<QPushButton*> pushButtons;
    for (const std::string& title : buttons) {
        // The first is the default; a later one, such as Cancel, is what Escape means.
        const auto role = pushButtons.empty() ? QMessageBox::AcceptRole : QMessageBox::RejectRole;
        pushButtons.push_back(box.addButton(QString::fromStdString(title), role));
    }
    if (pushButtons.empty()) {
        pushButtons.push_back(box.addButton(QMessageBox::Ok));
    }
    box.setDefaultButton(pushButtons.front());
    box.setEscapeButton(pushButtons.back());
    box.exec();
    for (std::size_t i = 0; i < pushButtons.size(); ++i) {
        if (box.clickedButton() == pushButtons[i]) {
            return i;
        }
    }
    return pushButtons.size() - 1; // closed another way: as Escape
}

} // namespace velmora::qt
