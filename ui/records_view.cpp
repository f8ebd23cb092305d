#include "ui/records_view.h"

#include "records/records_csv.h"
#include "records/report_layout.h"
#include "search/name_folding.h"

#include <algorithm>
#include <fstream>
#include <initializer_list>

namespace velmora {
namespace {

constexpr double rowHeight = 24.0;

} // namespace

bool recordMatchesFilter(const StoneRecord& record, std::string_view filter) {
    const std::string needle = foldedName(filter);
    return foldedName(record.label).find(needle) != std::string::npos ||
           foldedName(record.conclusion).find(needle) != std::string::npos;
}

RecordsView::RecordsView(MainWindow& window, AlertPresenter& alerts, Measure measure,
                         std::string decimalSeparator)
    : w_(window), alerts_(alerts), measure_(std::move(measure)),
      decimalSeparator_(std::move(decimalSeparator)) {
    w_.tbl_records.registerCellView(cellIdentifier,
                                    [] { return std::make_shared<TableCellView>(); });
    w_.tbl_records.setDataSource(this);
    w_.tbl_records.setDelegate(this);
    w_.txt_recordsFilter.setDelegate(this);
    w_.btn_saveRecord.setAction([this](Button&) { saveRecord(); });
    w_.btn_updateRecord.setAction([this](Button&) { updateRecord(); });
    w_.btn_deleteRecord.setAction([this](Button&) { deleteRecord(); });
    w_.btn_exportRecords.setAction([this](Button&) { exportCsv(); });
    w_.btn_reportRecords.setAction([this](Button&) { writeReport(); });
    w_.btn_printRecords.setAction([this](Button&) { printReport(); });
    w_.btn_recordConclusion.setAction([this](PopUpButton& sender) {
        if (sender.indexOfSelectedItem() > 0) {
            w_.txt_recordConclusion.setText(sender.titleOfSelectedItem());
        }
    });
    showChosen();
}

RecordStore* RecordsView::store() {
    RecordStore* store = services_.store ? services_.store() : nullptr;
    if (!store) {
        alerts_.runModal("The records are not available",
                         "The records' store could not be opened, so nothing can be kept or "
                         "read. Everything else works as before.",
                         AlertStyle::Warning, {"OK"});
    }
    return store;
}

void RecordsView::failed(const std::string& message, const std::string& reason) {
    alerts_.runModal(message, reason, AlertStyle::Warning, {"OK"});
}

void RecordsView::reload() {
    RecordStore* records = services_.store ? services_.store() : nullptr;
    std::vector<StoneRecord> all;
    if (records) {
        if (const auto error = records->list(all)) {
            failed("The records could not be read", *error);
            return;
        }
    }
    shown_.clear();
    for (StoneRecord& r : all) {
        if (recordMatchesFilter(r, w_.txt_recordsFilter.text())) {
            shown_.push_back(std::move(r));
        }
    }
    w_.tbl_records.reloadData();
    const auto chosen = std::find_if(shown_.begin(), shown_.end(),
                                     [this](const StoneRecord& r) { return r.id == chosenId_; });
    if (chosen == shown_.end()) {
        chosenId_ = 0;
        w_.tbl_records.selectRow(TableView::noSelection);
    } else {
        w_.tbl_records.selectRow(static_cast<int>(chosen - shown_.begin()));
    }
    showChosen();
}

void RecordsView::saveRecord() {
    RecordStore* records = store();
    if (!records || !services_.dialogs) {
        return;
    }
    const auto label = services_.dialogs->askLabel();
    if (!label) {
        return;
    }
    if (label->empty()) {
        alerts_.runModal("The record needs a label",
                         "Give the client's or the lot's number, so the record can be found again.",
                         AlertStyle::Informational, {"OK"});
        return;
    }
    StoneRecord record = measure_(*label);
    if (const auto error = records->add(record)) {
        failed("The record could not be saved", *error);
        return;
    }
    // The new record is the newest: shown, and chosen, whatever the filter said.
    w_.txt_recordsFilter.setText({});
    chosenId_ = record.id;
    reload();
}

const StoneRecord* RecordsView::chosen() const {
    const auto found = std::find_if(shown_.begin(), shown_.end(),
                                    [this](const StoneRecord& r) { return r.id == chosenId_; });
    return found == shown_.end() ? nullptr : &*found;
}

void RecordsView::chooseRecord(int row) {
    w_.tbl_records.clickRow(row);
}

void RecordsView::showChosen() {
    const StoneRecord* r = chosen();
    w_.txt_recordDetail.setText(r ? reportText(reportPage(*r, decimalSeparator_)) : std::string());
    w_.txt_recordNotes.setText(r ? r->notes : std::string());
    w_.txt_recordConclusion.setText(r ? r->conclusion : std::string());
    w_.btn_recordConclusion.removeAllItems();
    if (r) {
        w_.btn_recordConclusion.addItem(pickCandidate);
        for (const RecordedCandidate& c : r->candidates) {
            w_.btn_recordConclusion.addItem(c.name);
        }
    }
    for (Control* editing : std::initializer_list<Control*>{
             &w_.txt_recordNotes, &w_.txt_recordConclusion, &w_.btn_recordConclusion,
             &w_.btn_updateRecord, &w_.btn_deleteRecord}) {
        editing->setEnabled(r != nullptr);
    }
    for (Button* output : {&w_.btn_exportRecords, &w_.btn_reportRecords, &w_.btn_printRecords}) {
        output->setEnabled(!shown_.empty());
    }
}

void RecordsView::updateRecord() {
    const StoneRecord* r = chosen();
    RecordStore* records = r ? store() : nullptr;
    if (!records) {
        return;
    }
    StoneRecord edited = *r;
    edited.notes = w_.txt_recordNotes.text();
    edited.conclusion = w_.txt_recordConclusion.text();
    if (const auto error = records->update(edited)) {
        failed("The changes to the record could not be kept", *error);
        return;
    }
    reload();
}

void RecordsView::deleteRecord() {
    const StoneRecord* r = chosen();
    if (!r) {
        return;
    }
    const std::size_t answer = alerts_.runModal(
        "Delete the record \"" + r->label + "\"?",
        "The record, its readings and its conclusion are removed. This cannot be undone once "
        "the records are saved.",
        AlertStyle::Warning, {"Delete", "Cancel"});
    RecordStore* records = answer == 0 ? store() : nullptr;
    if (!records) {
        return;
    }
    if (const auto error = records->remove(r->id)) {
        failed("The record could not be deleted", *error);
        return;
    }
    reload();
}

void RecordsView::exportCsv() {
    const auto file = services_.dialogs
                          ? services_.dialogs->chooseSaveFile("Export the records", "records.csv")
                          : std::nullopt;
    if (!file) {
        return;
    }
    std::ofstream out(*file, std::ios::binary);
    writeRecordsCsv(out, shown_);
    out.close();
    if (!out) {
        failed("The records could not be exported", "Cannot write " + file->string() + ".");
    }
}

std::vector<StoneRecord> RecordsView::reportRecords() const {
    if (const StoneRecord* r = chosen()) {
        return {*r};
    }
    return shown_;
}

void RecordsView::writeReport() {
    if (!services_.report || !services_.dialogs || shown_.empty()) {
        return;
    }
    const std::vector<StoneRecord> records = reportRecords();
    const std::string name = records.size() == 1 ? records.front().label : "records";
    const auto file = services_.dialogs->chooseSaveFile("Write the report", name + ".pdf");
    if (!file) {
        return;
    }
    if (const auto error = services_.report->writePdf(records, *file)) {
        failed("The report could not be written", *error);
    }
}

void RecordsView::printReport() {
    if (!services_.report || shown_.empty()) {
        return;
    }
    if (const auto error = services_.report->print(reportRecords())) {
        failed("The report could not be printed", *error);
    }
}

int RecordsView::numberOfRowsInTableView(TableView&) {
    return static_cast<int>(shown_.size());
}

std::shared_ptr<View> RecordsView::tableViewViewFor(TableView& table, const TableColumn* column,
                                                    int row) {
    const StoneRecord* r = itemAt(shown_, row);
    if (!column || !r) {
        return nullptr;
    }
    const std::string& id = column->identifier;
    return table.makeTextCell(cellIdentifier, id == labelColumn  ? r->label
                                              : id == dateColumn ? reportDateText(r->examined)
                                                                 : r->conclusion);
}

double RecordsView::tableViewHeightOfRow(TableView&, int) {
    return rowHeight;
}

bool RecordsView::tableViewShouldSelectRow(TableView&, int row) {
    const StoneRecord* r = itemAt(shown_, row);
    if (!r) {
        return false;
    }
    chosenId_ = r->id;
    showChosen();
    return true;
}

// A new filter is a new selection: the reports take every record it lists until one is chosen.
void RecordsView::controlTextDidChange(TextField*) {
    chosenId_ = 0;
    reload();
}

bool RecordsView::controlTextShouldEndEditing(TextField&, FieldEditor&) {
    return true;
}

} // namespace velmora
