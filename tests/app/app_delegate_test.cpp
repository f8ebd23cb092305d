#include "app/app_delegate.h"
#include "tests/support/fake_hid.h"
#include "tests/support/manual_run_loop.h"
#include "tests/support/memory_store.h"
#include "tests/support/recording_alert_presenter.h"
#include "tests/support/recording_log.h"

#include <gmock/gmock.h>

namespace velmora::test {
namespace {

using ::testing::ElementsAre, ::testing::IsEmpty, ::testing::StartsWith;

// Marks every text it is asked for, to show that the text went through translation.
class MarkedStrings final : public LocalizedStrings {
public:
    std::string localizedString(const std::string& key) const override { return "«" + key + "»"; }
};

class AppDelegateTest : public ::testing::Test {
protected:
    AppDelegate& delegate(const MemoryStoreSetup& setup = {}) {
        delegate_.emplace(
            connector, [setup] { return std::make_unique<MemoryStore>(setup); }, alerts, strings,
            log);
        return *delegate_;
    }
    MemoryStore& store() { return dynamic_cast<MemoryStore&>(delegate_->persistentContainer()); }

    ManualRunLoop runLoop;
    NotificationCenter center;
    RecordingLog log;
    FakeHidBus bus;
    HIDDeviceConnector connector{bus.managerFactory(), runLoop, center, log};
    RecordingAlertPresenter alerts;
    MarkedStrings strings;
    std::optional<AppDelegate> delegate_;
};

TEST_F(AppDelegateTest, AStoreThatFailsToLoadIsToldOnceAndTheApplicationCarriesOn) {
    const struct {
        bool opens;
        const char* message;
        const char* consequence;
    } cases[] = {
        {false, "«The records cannot be opened»", "«Velmora works on without records"},
        {true, "«The records file could not be read»", "«The file is left as it was"},
    };
    for (const auto& c : cases) {
        alerts.alerts.clear();
        log.errorLines.clear();
        const std::string why =
            c.opens ? "Velmora.sqlite could not be used (damaged). It was kept aside as "
                      "Velmora.unreadable-1.sqlite and a new, empty store started."
                    : "cannot create the folder /data: Permission denied";
        AppDelegate& d = delegate({.loadError = why, .opens = c.opens});
        d.saveAction();
        d.persistentContainer();
        EXPECT_THAT(log.errorLines, ElementsAre("Unresolved error " + why));
        EXPECT_EQ(d.applicationShouldTerminate(), TerminateReply::Now);
        ASSERT_THAT(alerts.texts(&RecordedAlert::message), ElementsAre(c.message));
        EXPECT_THAT(alerts.alerts[0].informative, StartsWith(why + "\n\n" + c.consequence));
        EXPECT_THAT(alerts.alerts[0].buttons, ElementsAre("OK"));
    }
}

TEST_F(AppDelegateTest, SaveWritesChangesAndShowsAFailure) {
    delegate({.hasChanges = true}).saveAction();
    EXPECT_EQ(store().saves, 1);
    delegate().saveAction(); // no changes: nothing visible
    EXPECT_EQ(store().saves, 0);
    EXPECT_THAT(alerts.alerts, IsEmpty());

    delegate({.refusesCommit = true, .hasChanges = true, .saveError = "read-only folder"})
        .saveAction();
    EXPECT_THAT(log.errorLines,
                ElementsAre("Velmora_Software.AppDelegate unable to commit editing before saving"));
    ASSERT_THAT(alerts.texts(&RecordedAlert::message), ElementsAre("read-only folder"));
    EXPECT_THAT(alerts.alerts[0].buttons, ElementsAre("OK"));
}

// Edits that cannot be committed hold the quit back; changes are saved before it.
TEST_F(AppDelegateTest, TheQuitCommitsAndSavesFirst) {
    EXPECT_EQ(delegate({.refusesCommit = true}).applicationShouldTerminate(),
              TerminateReply::Cancel);
    EXPECT_THAT(log.errorLines,
                ElementsAre("Velmora_Software.AppDelegate unable to commit editing to terminate"));
    EXPECT_EQ(delegate({.hasChanges = true}).applicationShouldTerminate(), TerminateReply::Now);
    EXPECT_EQ(store().saves, 1);
}

TEST_F(AppDelegateTest, AFailedSaveAtQuitShowsTheErrorThenAsksInTheUsersLanguage) {
    const MemoryStoreSetup failing{.hasChanges = true, .saveError = "disk full"};
    alerts.answers = {0, 1}; // OK, then Cancel
    EXPECT_EQ(delegate(failing).applicationShouldTerminate(), TerminateReply::Cancel);
    ASSERT_THAT(alerts.texts(&RecordedAlert::message),
                ElementsAre("disk full", "«Could not save changes while quitting. Quit anyway?»"));
    const RecordedAlert& question = alerts.alerts[1];
    EXPECT_EQ(question.informative, "«Quitting now will lose any changes you have made since "
                                    "the last successful save»");
    EXPECT_THAT(question.buttons, ElementsAre("«Quit anyway»", "«Cancel»"));

    alerts.answers = {0, 0}; // OK, then Quit anyway
    EXPECT_EQ(delegate(failing).applicationShouldTerminate(), TerminateReply::Now);
}

} // namespace
} // namespace velmora::test
