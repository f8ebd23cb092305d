#include "tests/ui/qt/shell_fixture.h"

#include <QTabWidget>
#include <QTableView>
#include <gmock/gmock.h>

namespace velmora::test {
namespace {

using RecordsTab = ShellTest;

// Start-up opens no store; the first turn to the records does, and tells a failure there.
TEST_F(RecordsTab, TheContainerOpensWhenTheUserFirstTurnsToTheRecords) {
    const struct {
        MemoryStoreSetup store;
        std::vector<std::string> alerts;
    } cases[] = {
        {{}, {}},
        {{.loadError = "cannot create the folder /data: Permission denied", .opens = false},
         {"The records cannot be opened"}},
    };
    for (const auto& c : cases) {
        alerts.alerts.clear();
        containersMade = 0;
        open({.store = c.store});
        EXPECT_EQ(containersMade, 0);
        auto* tabs = widget<QTabWidget>("resultsTabs");
        tabs->setCurrentWidget(widget("tab_records"));
        settle();
        tabs->setCurrentWidget(widget("tab_bestMatches"));
        tabs->setCurrentWidget(widget("tab_records"));
        settle();
        EXPECT_EQ(containersMade, 1);
        std::vector<std::string> shown;
        for (const auto& alert : alerts.alerts) {
            shown.push_back(alert.message);
        }
        EXPECT_EQ(shown, c.alerts);
        EXPECT_EQ(widget<QTableView>("tbl_records")->model()->rowCount(), 0);
    }
}

} // namespace
} // namespace velmora::test
