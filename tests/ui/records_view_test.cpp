#include "tests/support/fake_records_services.h"
#include "tests/support/memory_store.h"
#include "tests/support/recording_alert_presenter.h"
#include "tests/support/reference_rows.h"
#include "tests/support/temp_dir.h"
#include "tests/support/window_harness.h"
#include "ui/records_view.h"

#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

namespace velmora::test {
namespace {

using Texts = std::vector<std::string>;

// The view over a window of its own, a store in memory and scripted dialogs; each saved record
// is measured as holding the label and two candidates.
struct RecordsBench {
    explicit RecordsBench(MemoryStoreSetup setup = {}) : store(std::move(setup)) {
        store.loadPersistentStores();
        view.setServices({[this] { return store.records(); }, &dialogs, &report});
        view.reload();
    }
    void save(const std::string& label) {
        dialogs.labels.push_back(label);
        view.saveRecord();
    }
    Texts labels() { return columnTexts(window.tbl_records, 0); }
    void filter(const std::string& text) {
        window.txt_recordsFilter.setText(text);
        view.controlTextDidChange(&window.txt_recordsFilter);
    }
    Texts alertMessages() const { return alerts.texts(&RecordedAlert::message); }

    MainWindow window;
    RecordingAlertPresenter alerts;
    MemoryStore store;
    ScriptedRecordsDialogs dialogs;
    RecordingReportOutput report;
    RecordsView view{window, alerts,
                     [](std::string label) {
                         StoneRecord r;
                         r.label = std::move(label);
                         r.candidates = {{"2", "Quartz", 100}, {"185", "Iolite", 61}};
                         return r;
                     },
                     ","};
};

TEST(RecordsView, ListsNewestFirstAndFiltersByLabelOrConclusionWithoutCaseOrAccents) {
    RecordsBench b;
    for (const char* label : {"Lot 7", "Müller ring", "lot 12"}) {
        b.save(label);
    }
    EXPECT_EQ(b.view.chosen()->label, "lot 12") << "a saved record is chosen";

    b.view.chooseRecord(2);
    EXPECT_EQ(b.window.btn_recordConclusion.itemTitles(),
              (Texts{RecordsView::pickCandidate, "Quartz", "Iolite"}));
    b.window.btn_recordConclusion.pickItem(2);
    b.window.txt_recordNotes.setText("silk");
    b.view.updateRecord();
    const StoneRecord& kept = b.store.recordsKept.kept[2];
    EXPECT_EQ(kept.conclusion + ", " + kept.notes, "Iolite, silk");
    EXPECT_NE(b.window.txt_recordDetail.text().find("Conclusion: Iolite"), std::string::npos);

    const struct {
        const char* filter;
        Texts labels;
    } cases[] = {
        {"", {"lot 12", "Müller ring", "Lot 7"}},
        {"muller", {"Müller ring"}},
        {"iolite", {"Lot 7"}},
    };
    for (const auto& c : cases) {
        b.filter(c.filter);
        EXPECT_EQ(b.labels(), c.labels) << c.filter;
    }
}

TEST(RecordsView, DeletesOnlyOnceConfirmed) {
    const struct {
        std::size_t answer;
        Texts left;
    } cases[] = {{0, {"Lot 8"}}, {1, {"Lot 8", "Lot 7"}}};
    for (const auto& c : cases) {
        RecordsBench b;
        b.save("Lot 7");
        b.save("Lot 8");
        b.view.chooseRecord(1);
        b.alerts.answers = {c.answer};
        b.view.deleteRecord();
        EXPECT_EQ(b.alertMessages(), (Texts{"Delete the record \"Lot 7\"?"}));
        EXPECT_EQ(b.labels(), c.left) << c.answer;
    }
}

TEST(RecordsView, AStoreThatRefusesAChangeSaysSoAndLosesNothing) {
    const std::string full = "cannot change Velmora.sqlite: disk full";
    RecordsBench b;
    b.save("Lot 7");
    b.view.chooseRecord(0);
    b.store.recordsKept.refusal = full;

    b.save("Lot 8");
    b.window.txt_recordNotes.setText("typed, not yet kept");
    b.view.updateRecord();
    b.view.deleteRecord();

    EXPECT_EQ(b.alertMessages(),
              (Texts{"The record could not be saved", "The changes to the record could not be kept",
                     "Delete the record \"Lot 7\"?", "The record could not be deleted"}));
    EXPECT_EQ(b.alerts.alerts[3].informative, full);
    EXPECT_EQ(b.labels(), (Texts{"Lot 7"}));
    EXPECT_EQ(b.window.txt_recordNotes.text(), "typed, not yet kept");
}

TEST(RecordsView, WithoutAStoreOrALabelNothingIsSaved) {
    const struct {
        bool opens;
        std::optional<std::string> label;
        Texts alerts;
    } cases[] = {{false, "Lot 7", {"The records are not available"}},
                 {true, std::nullopt, {}},
                 {true, "", {"The record needs a label"}}};
    for (const auto& c : cases) {
        RecordsBench b({.opens = c.opens});
        b.dialogs.labels.push_back(c.label);
        b.view.saveRecord();
        EXPECT_FALSE(b.store.hasChanges()) << c.opens;
        EXPECT_EQ(b.alertMessages(), c.alerts) << c.opens;
    }
}

TEST(RecordsView, ExportsTheListedRecordsAndReportsTheChosenOneOrAllListed) {
    TempDir dir;
    RecordsBench b;
    b.save("Lot 7");
    b.save("Lot 8");
    b.filter("7");
    b.dialogs.files = {dir.path() / "out.csv"};
    b.view.exportCsv();
    std::ifstream in(dir.path() / "out.csv");
    const std::string csv{std::istreambuf_iterator<char>(in), {}};
    EXPECT_TRUE(csv.find("Lot 7") != csv.npos && csv.find("Lot 8") == csv.npos) << csv;

    b.dialogs.files = {dir.path() / "all.pdf", dir.path() / "one.pdf"};
    b.filter(""); // lets go of Lot 8, chosen as it was saved: the report holds all listed
    b.view.writeReport();
    b.view.chooseRecord(1);
    b.view.writeReport();
    b.view.printReport();
    EXPECT_EQ(b.report.written, (std::vector<std::pair<Texts, std::filesystem::path>>{
                                    {{"Lot 8", "Lot 7"}, dir.path() / "all.pdf"},
                                    {{"Lot 7"}, dir.path() / "one.pdf"}}));
    EXPECT_EQ(b.report.printed, (std::vector<Texts>{{"Lot 7"}}));

    b.report.error = "cannot write one.pdf";
    b.dialogs.files = {dir.path() / "x.pdf"};
    b.view.writeReport();
    b.dialogs.files = {dir.path() / "missing" / "x.csv"};
    b.view.exportCsv();
    EXPECT_EQ(b.alertMessages(),
              (Texts{"The report could not be written", "The records could not be exported"}));
}

// Through the window: the record holds what the form and the Best matches list show.
TEST(RecordsView, SavesTheMeasurementAsTheWindowHoldsIt) {
    WindowHarness h({.rows = std::vector<std::string>{stoneRow("1", "Rock crystal", "1.544-1.553"),
                                                      stoneRow("50", "Ruby", "1.762-1.770")}});
    RecordsBench b;
    h.controller.setRecordsServices({[&b] { return b.store.records(); }, &b.dialogs, &b.report});
    h.click(h.window.bvtn_dictionary);
    h.click(h.window.check_RI);
    h.type(h.window.txt_leftRIReading, "1.762");
    h.type(h.window.txt_leftRIHigh, "1.770");
    b.dialogs.labels.push_back("Client 31");
    h.click(h.window.btn_saveRecord);

    ASSERT_EQ(b.store.recordsKept.kept.size(), 1u);
    const StoneRecord& r = b.store.recordsKept.kept[0];
    EXPECT_EQ(r.label, "Client 31");
    EXPECT_EQ(r.ri.values, (std::vector<double>{1.762, 1.77}));
    ASSERT_FALSE(r.candidates.empty());
    EXPECT_EQ(r.candidates[0].number + " " + r.candidates[0].name, "50 Ruby");
}

} // namespace
} // namespace velmora::test
