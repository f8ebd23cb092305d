#include "ui/best_matches.h"

#include "search/ranking_table.h"

namespace velmora {
namespace {

// Two lines of the candidate's text beside a large fit figure.
constexpr double rowHeight = 54.0;

// Green for a candidate that fits every reading, slate for one that is only near: the two tell
// apart at a glance from across the bench.
constexpr Rgba fitsInk = Rgba::rgb255(30, 123, 52);
constexpr Rgba nearInk = Rgba::rgb255(95, 104, 125);

} // namespace

BestMatches::BestMatches(TableView& table, TextField& note, ShowStone showStone,
                         InputsChanged inputsChanged)
    : table_(table), note_(note), showStone_(std::move(showStone)),
      inputsChanged_(std::move(inputsChanged)) {
    table_.registerCellView(cellIdentifier, [] { return std::make_shared<TableCellView>(); });
    table_.setDataSource(this);
    table_.setDelegate(this);
}

BestMatches::~BestMatches() = default;

void BestMatches::setStones(const StoneList& stones) {
    rows_.clear();
    table_.reloadData();
    reference_ = std::make_unique<RankingTable>(stones);
}

void BestMatches::show(const RankingForm& form, const DecimalSeparators& separators) {
    if (!reference_) {
        clear({});
        return;
    }
    RankedForm ranked = rankForm(*reference_, form, separators, shownCandidates);
    rows_ = std::move(ranked.rows);
    note_.setText(std::move(ranked.note));
    table_.reloadData();
    table_.selectRow(TableView::noSelection);
}

void BestMatches::clear(std::string note) {
    rows_.clear();
    note_.setText(std::move(note));
    table_.reloadData();
}

int BestMatches::numberOfRowsInTableView(TableView&) {
    return static_cast<int>(rows_.size());
}

std::shared_ptr<View> BestMatches::tableViewViewFor(TableView& table, const TableColumn* column,
                                                    int row) {
    const BestMatchRow* shown = itemAt(rows_, row);
    if (!column || !shown) {
        return nullptr;
    }
    const std::string& id = column->identifier;
    auto cell = table.makeTextCell(cellIdentifier, id == fitColumn         ? shown->fit
                                                   : id == candidateColumn ? shown->candidate
                                                                           : shown->deviations);
    if (cell && cell->textField() && id == fitColumn) {
        cell->textField()->setTextColor(shown->withinTolerance ? fitsInk : nearInk);
    }
    return cell;
}

double BestMatches::tableViewHeightOfRow(TableView&, int) {
    return rowHeight;
}

bool BestMatches::tableViewShouldSelectRow(TableView&, int row) {
    const BestMatchRow* chosen = itemAt(rows_, row);
    if (!chosen) {
        return false;
    }
    showStone_(*chosen->stone);
    return true;
}

void BestMatches::controlTextDidChange(TextField*) {
    inputsChanged_();
}

bool BestMatches::controlTextShouldEndEditing(TextField&, FieldEditor&) {
    return true;
}

} // namespace velmora
