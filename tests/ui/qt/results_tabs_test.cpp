#include "tests/ui/qt/shell_fixture.h"

#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <gmock/gmock.h>

namespace velmora::test {
namespace {

using ::testing::IsEmpty;
using ResultsTabs = ShellTest;

TEST_F(ResultsTabs, BestMatchesListTheCandidatesAfterASearchAndShowTheOneClicked) {
    open();
    auto* tabs = widget<QTabWidget>("resultsTabs");
    tabs->setCurrentWidget(widget("tab_bestMatches"));
    click("bvtn_dictionary");
    click("check_RI");
    type("txt_leftRIReading", "1.762");
    click("btn_search");

    auto* table = widget<QTableView>("tbl_bestMatches");
    QAbstractItemModelTester tester(table->model(),
                                    QAbstractItemModelTester::FailureReportingMode::Fatal);
    ASSERT_GE(table->model()->rowCount(), 1);
    EXPECT_EQ(table->model()->index(0, 0).data(), "100%");
    EXPECT_EQ(table->model()->index(0, 1).data(), "Ruby");
    EXPECT_EQ(table->model()->index(0, 2).data(), "Fits every reading");
    EXPECT_THAT(alerts.alerts, IsEmpty());

    const QRect cell = table->visualRect(table->model()->index(0, 1));
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, cell.center());
    settle();
    EXPECT_EQ(text("txt_sg"), "3.97-4.05");
    EXPECT_EQ(text("txt_hardness"), "9-9");
}

// Start-up opens no store; the first turn to the records does, and tells a failure there.
TEST_F(ResultsTabs, TheRecordsContainerOpensWhenTheUserFirstTurnsToTheRecords) {
    open({.store = {.loadError = "cannot create the folder /data: Permission denied",
                    .opens = false}});
    EXPECT_EQ(containersMade, 0);
    widget<QTabWidget>("resultsTabs")->setCurrentWidget(widget("tab_records"));
    settle();
    EXPECT_EQ(containersMade, 1);
    EXPECT_EQ(alerts.texts(&RecordedAlert::message),
              std::vector<std::string>{"The records cannot be opened"});
    EXPECT_EQ(widget<QTableView>("tbl_records")->model()->rowCount(), 0);
}

} // namespace
} // namespace velmora::test
