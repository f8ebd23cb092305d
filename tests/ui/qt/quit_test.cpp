#include "tests/ui/qt/shell_fixture.h"

#include <QAction>
#include <QApplication>
#include <QInputDialog>
#include <QTimer>
#include <gmock/gmock.h>

namespace velmora::test {
namespace {

using ::testing::ElementsAre, ::testing::IsEmpty;
using Quit = ShellTest;

const MemoryStoreSetup failingSave{.hasChanges = true, .saveError = "cannot save Velmora.sqlite"};

TEST_F(Quit, ClosingTheWindowWithAFailedSaveLetsTheUserQuitAnyway) {
    open({.store = failingSave});
    alerts.answers = {0, 0}; // the error's OK, then Quit anyway
    EXPECT_TRUE(window().close());
    EXPECT_FALSE(window().isVisible());
    EXPECT_EQ(alerts.alerts.size(), 2u);
    EXPECT_EQ(containersMade, 1);
}

// The label is typed into the real dialog the window asks with.
TEST_F(Quit, ARecordSavedInTheWindowIsAChangeTheQuitMustSaveOrBeToldToDrop) {
    open({.store = {.saveError = "cannot save Velmora.sqlite"}});
    EXPECT_FALSE(delegate().persistentContainer().hasChanges());
    QTimer::singleShot(0, [] {
        auto* dialog = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        dialog->setTextValue("Lot 7, \"blue\"");
        dialog->accept();
    });
    click("btn_saveRecord");
    EXPECT_TRUE(delegate().persistentContainer().hasChanges());
    EXPECT_THAT(alerts.texts(&RecordedAlert::message), IsEmpty());

    alerts.answers = {0, 1}; // the error's OK, then Cancel
    EXPECT_FALSE(window().close());
    EXPECT_THAT(alerts.texts(&RecordedAlert::message),
                ElementsAre("cannot save Velmora.sqlite",
                            "Could not save changes while quitting. Quit anyway?"));
    EXPECT_TRUE(window().isVisible());
}

TEST_F(Quit, FileQuitEndsTheApplicationAndItsInstrumentSession) {
    open();
    click("btn_connected");
    ASSERT_EQ(runLoop.activeTimers(), 1u);
    QTimer::singleShot(0, [this] { window().quitAction()->trigger(); });
    // Should the quit not happen, the test fails instead of waiting for ever.
    QTimer::singleShot(10'000, [] {
        ADD_FAILURE() << "File > Quit did not quit";
        QCoreApplication::exit(1);
    });
    EXPECT_EQ(QCoreApplication::exec(), 0);
    EXPECT_EQ(runLoop.activeTimers(), 0u); // the session stopped at termination
    EXPECT_THAT(alerts.alerts, IsEmpty());
}

} // namespace
} // namespace velmora::test
