#include "app/contact_us.h"
#include "tests/ui/qt/shell_fixture.h"

#include <QPdfDocument>
#include <QPdfView>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <gmock/gmock.h>

namespace velmora::test {
namespace {

using ::testing::ElementsAre, ::testing::IsEmpty;
using Screens = ShellTest;

TEST_F(Screens, TheContactScreenOpensTheWebsiteAndAMailToSupportAlone) {
    open();
    whileScreenOpen("btn_contactUs", [](QWidget& screen) {
        EXPECT_EQ(screen.windowTitle(), "Technical Support");
        EXPECT_TRUE(screen.isModal());
        QTest::mouseClick(screen.findChild<QPushButton*>("btn_mail"), Qt::LeftButton);
        QTest::mouseClick(screen.findChild<QPushButton*>("visitWebsite"), Qt::LeftButton);
    });
    const SupportContact maker = makerSupport();
    EXPECT_THAT(workspace.mails, ElementsAre(MailRequest{maker.email, "Technical Support", ""}));
    EXPECT_THAT(workspace.openedUrls, ElementsAre(maker.websiteUrl));
}

TEST_F(Screens, TheTutorialOpensTwiceAsTwoSeparateScreens) {
    open({.withTutorial = true});
    QPointer<QWidget> first;
    for (int opening = 0; opening < 2; ++opening) {
        whileScreenOpen("btn_tutorial", [&](QWidget& screen) {
            EXPECT_EQ(screen.windowTitle(), "Tutorial.pdf");
            const auto* viewer = screen.findChild<QPdfView*>();
            ASSERT_NE(viewer, nullptr);
            ASSERT_NE(viewer->document(), nullptr);
            EXPECT_EQ(viewer->document()->pageCount(), 1);
            if (opening == 0) {
                first = &screen;
            } else {
                EXPECT_TRUE(first.isNull()); // the first screen went when it closed
            }
        });
    }
    EXPECT_THAT(alerts.alerts, IsEmpty());
}

} // namespace
} // namespace velmora::test
