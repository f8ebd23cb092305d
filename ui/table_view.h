#pragma once

// A table of rows and columns that asks its data source how many rows there are and its delegate
// for each cell, as a desktop table does. It shows the rows it counted at its last reload, until
// the next one, whatever its data source holds in between.

#include "ui/text_field.h"
#include "ui/view.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace velmora {

class TableView;

struct TableColumn {
    std::string identifier;
};

// What a data source's row shows, or nothing for a row it does not have.
template <class Items> auto itemAt(const Items& items, int row) -> decltype(&items[0]) {
    return row >= 0 && static_cast<std::size_t>(row) < items.size()
               ? &items[static_cast<std::size_t>(row)]
               : nullptr;
}

// A cell's view: a view with, usually, one text field.
class TableCellView : public View {
public:
    explicit TableCellView(bool withTextField = true)
        : textField_(withTextField ? std::make_unique<TextField>() : nullptr) {}

    TextField* textField() const { return textField_.get(); }

private:
    std::unique_ptr<TextField> textField_;
};

class TableViewDataSource {
public:
    virtual ~TableViewDataSource() = default;
    virtual int numberOfRowsInTableView(TableView& table) = 0;
};

class TableViewDelegate {
public:
    virtual ~TableViewDelegate() = default;
    // The view of one cell; the column is absent for a row-wide view.
    virtual std::shared_ptr<View> tableViewViewFor(TableView& table, const TableColumn* column,
                                                   int row) = 0;
    virtual double tableViewHeightOfRow(TableView& table, int row) = 0;
    // Whether the row the user clicks may become the selection.
    virtual bool tableViewShouldSelectRow(TableView& table, int row) = 0;
};

class TableView : public View {
public:
    using CellViewFactory = std::function<std::shared_ptr<View>()>;

    static constexpr int noSelection = -1;

    explicit TableView(std::vector<TableColumn> columns) : columns_(std::move(columns)) {}

    const std::vector<TableColumn>& columns() const { return columns_; }

    void setDataSource(TableViewDataSource* dataSource) { dataSource_ = dataSource; }
    void setDelegate(TableViewDelegate* delegate) { delegate_ = delegate; }

    // The cell views the interface file defines, by identifier.
    void registerCellView(std::string identifier, CellViewFactory factory);
    // A new cell view of that identifier, or nothing when the interface file has none.
    std::shared_ptr<View> makeView(const std::string& identifier) const;
    // A new text cell of that identifier showing text; its text field, if any, for the caller's
    // own touches. Nothing when the interface file has no such cell.
    std::shared_ptr<TableCellView> makeTextCell(const std::string& identifier,
                                                const std::string& text) const;

    // Counts the rows anew. A selected row that is no longer there is dropped.
    void reloadData();
    int numberOfRows() const { return rows_; }

    // The view the delegate gives for a shown cell; nothing outside the shown rows.
    std::shared_ptr<View> viewAt(int column, int row);
    double heightOfRow(int row);

    int selectedRow() const { return selected_; }
    // Replaces the selection with the row, as the program does it: nobody is asked. A row that
    // is not shown leaves nothing selected.
    void selectRow(int row);
    // The user clicks a shown row: it becomes the selection if the delegate agrees.
    void clickRow(int row);

private:
    bool isShown(int row) const { return row >= 0 && row < rows_; }

    std::vector<TableColumn> columns_;
    std::map<std::string, CellViewFactory> cellViews_;
    TableViewDataSource* dataSource_ = nullptr;
    TableViewDelegate* delegate_ = nullptr;
    int rows_ = 0;
    int selected_ = noSelection;
};

// The text a shown cell displays, or nothing when it has no view or no text field.
std::optional<std::string> cellText(TableView& table, int column, int row);
// The colour of that text, when the cell gives one.
std::optional<Rgba> cellTextColor(TableView& table, int column, int row);

} // namespace velmora
