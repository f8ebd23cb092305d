#pragma once

// The Best matches view: the ranked candidates for what the form holds, in a table of its own
// beside the results, with a one-line note above it. It never raises an alert: an entry it cannot
// use empties the list and says so in the note. A click on a candidate shows its lead stone's
// record in the detail panel the results use.

#include "data/stone_list.h"
#include "search/ranking_form.h"
#include "ui/table_view.h"
#include "ui/text_field.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace velmora {

class BestMatches final : public TableViewDataSource,
                          public TableViewDelegate,
                          public TextFieldDelegate {
public:
    using ShowStone = std::function<void(const Stones&)>;
    using InputsChanged = std::function<void()>;

    static constexpr const char* cellIdentifier = "bestMatchCell";
    static constexpr const char* fitColumn = "fitColumn";
    static constexpr const char* candidateColumn = "candidateColumn";
    static constexpr std::size_t shownCandidates = 25;

    // The table and the note belong to the window, which must outlive the view.
    BestMatches(TableView& table, TextField& note, ShowStone showStone,
                InputsChanged inputsChanged);
    ~BestMatches() override;
    BestMatches(const BestMatches&) = delete;
    BestMatches& operator=(const BestMatches&) = delete;

    // The reference set the candidates come from; it must outlive the view.
    void setStones(const StoneList& stones);
    // Ranks the stones for what the form holds and lists the candidates, nothing selected.
    void show(const RankingForm& form, const DecimalSeparators& separators);
    // An empty list under the note.
    void clear(std::string note);

    const std::vector<BestMatchRow>& rows() const { return rows_; }

    int numberOfRowsInTableView(TableView& table) override;
    std::shared_ptr<View> tableViewViewFor(TableView& table, const TableColumn* column,
                                           int row) override;
    double tableViewHeightOfRow(TableView& table, int row) override;
    bool tableViewShouldSelectRow(TableView& table, int row) override;

    // The view's own entries (the high R.I., the weights) rank anew on every change, and take
    // any text: what they cannot use, the note says.
    void controlTextDidChange(TextField* object) override;
    bool controlTextShouldEndEditing(TextField& control, FieldEditor& editor) override;

private:
    TableView& table_;
    TextField& note_;
    ShowStone showStone_;
    InputsChanged inputsChanged_;
    std::unique_ptr<RankingTable> reference_;
    std::vector<BestMatchRow> rows_;
};

} // namespace velmora
