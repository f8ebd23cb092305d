#include "ui/qt/message_box_alert_presenter.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

namespace velmora::qt {
namespace {

// Answers the message box that is up with a key or a button, after looking at it.
void answer(const std::function<void(QMessageBox&)>& press) {
    QTimer::singleShot(0, [press] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        press(*box);
    });
}

TEST(MessageBoxAlerts, ShowTheTextsModallyAndTellWhichButtonWasPressed) {
    MessageBoxAlertPresenter alerts;
    answer([](QMessageBox& box) {
        EXPECT_EQ(box.text(), "");
        EXPECT_EQ(box.informativeText(), "Please insert number only!");
        EXPECT_EQ(box.icon(), QMessageBox::Warning);
        EXPECT_TRUE(box.isModal());
        ASSERT_EQ(box.buttons().size(), 1);
        EXPECT_EQ(box.buttons()[0]->text(), "OK");
        QTest::keyClick(&box, Qt::Key_Return);
    });
    EXPECT_EQ(alerts.runModal("", "Please insert number only!", AlertStyle::Warning, {"OK"}), 0u);

    answer([](QMessageBox& box) {
        EXPECT_EQ(box.defaultButton()->text(), "Quit anyway");
        QTest::mouseClick(box.buttons().size() == 2 ? box.escapeButton() : nullptr, Qt::LeftButton);
    });
    EXPECT_EQ(alerts.runModal("Quit?", "", AlertStyle::Critical, {"Quit anyway", "Cancel"}), 1u);
}

} // namespace
} // namespace velmora::qt
