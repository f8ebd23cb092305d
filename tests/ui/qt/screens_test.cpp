#include "app/contact_us.h"
#include "tests/ui/qt/shell_fixture.h"

#include <QPdfDocument>
#include <QPdfView>
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

TEST_F(Screens, TheTutorialOpensInAPdfViewer) {
    open({.withTutorial = true});
    whileScreenOpen("btn_tutorial", [&](QWidget& screen) {
        EXPECT_EQ(screen.windowTitle(), "Tutorial.pdf");
        const auto* viewer = screen.findChild<QPdfView*>();
        ASSERT_TRUE(viewer != nullptr && viewer->document() != nullptr);
        EXPECT_EQ(viewer->document()->pageCount(), 1);
    });
    EXPECT_THAT(alerts.alerts, IsEmpty());
}

} // namespace
} // namespace velmora::test
