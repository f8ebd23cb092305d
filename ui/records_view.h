#pragma once

// The Records view: the kept records, newest first, narrowed by a filter on the label or the
// conclusion; the chosen record's page; its notes and conclusion edited; records deleted once
// confirmed, exported to CSV, written to a PDF report or printed: the chosen record, or, with
// none chosen, every listed one. Saving a record takes the
// current measurement as the window holds it, in one action.
//
// Every change goes into the store, which holds it as unsaved until the container is saved, so
// quitting goes through the container's own check. A change the store refuses is told in an
// alert and nothing on screen is lost: the typed notes stay where they were typed.

#include "records/stone_record.h"
#include "ui/alert_presenter.h"
#include "ui/main_window.h"
#include "ui/records_services.h"

#include <functional>
#include <string>
#include <vector>

namespace velmora {

class RecordsView final : public TableViewDataSource,
                          public TableViewDelegate,
                          public TextFieldDelegate {
public:
    // The record of the current measurement, under this label.
    using Measure = std::function<StoneRecord(std::string label)>;

    static constexpr const char* cellIdentifier = "recordCell";
    static constexpr const char* labelColumn = "labelColumn";
    static constexpr const char* dateColumn = "dateColumn";
    static constexpr const char* pickCandidate = "Pick a candidate";

    // The window must outlive the view.
    RecordsView(MainWindow& window, AlertPresenter& alerts, Measure measure,
                std::string decimalSeparator);

    void setServices(RecordsServices services) { services_ = std::move(services); }

    // Lists the store's records anew, through the filter, keeping the chosen one chosen.
    void reload();
    void saveRecord();
    void chooseRecord(int row);
    void updateRecord();
    void deleteRecord();
    void exportCsv();
    void writeReport();
    void printReport();

    const std::vector<StoneRecord>& shown() const { return shown_; }
    const StoneRecord* chosen() const;

    int numberOfRowsInTableView(TableView& table) override;
    std::shared_ptr<View> tableViewViewFor(TableView& table, const TableColumn* column,
                                           int row) override;
    double tableViewHeightOfRow(TableView& table, int row) override;
    bool tableViewShouldSelectRow(TableView& table, int row) override;
    // The filter narrows the list as it is typed, and lets go of the chosen record.
    void controlTextDidChange(TextField* object) override;
    bool controlTextShouldEndEditing(TextField& control, FieldEditor& editor) override;

private:
    // The store, or nothing after an alert that says why.
    RecordStore* store();
    void showChosen();
    // The chosen record alone, else every listed one.
    std::vector<StoneRecord> reportRecords() const;
    void failed(const std::string& message, const std::string& reason);

    MainWindow& w_;
    AlertPresenter& alerts_;
    Measure measure_;
    std::string decimalSeparator_;
    RecordsServices services_;
    std::vector<StoneRecord> shown_;
    RecordId chosenId_ = 0;
};

// True when the record's label or conclusion holds the filter, without case or accents.
bool recordMatchesFilter(const StoneRecord& record, std::string_view filter);

} // namespace velmora
