#include "ui/table_view.h"

namespace velmora {

void TableView::registerCellView(std::string identifier, CellViewFactory factory) {
    cellViews_[std::move(identifier)] = std::move(factory);
}

std::shared_ptr<View> TableView::makeView(const std::string& identifier) const {
    const auto it = cellViews_.find(identifier);
    return it == cellViews_.end() ? nullptr : it->second();
}

std::shared_ptr<TableCellView> TableView::makeTextCell(const std::string& identifier,
                                                       const std::string& text) const {
    auto cell = std::dynamic_pointer_cast<TableCellView>(makeView(identifier));
    if (cell && cell->textField()) {
        cell->textField()->setText(text);
    }
    return cell;
}

void TableView::reloadData() {
    rows_ = dataSource_ ? dataSource_->numberOfRowsInTableView(*this) : 0;
    changed(Property::Rows);
    if (!isShown(selected_)) {
        selectRow(noSelection);
    }
}

std::shared_ptr<View> TableView::viewAt(int column, int row) {
    if (!delegate_ || !isShown(row) || column < 0 || column >= static_cast<int>(columns_.size())) {
        return nullptr;
    }
    return delegate_->tableViewViewFor(*this, &columns_[static_cast<std::size_t>(column)], row);
}

double TableView::heightOfRow(int row) {
    return delegate_ && isShown(row) ? delegate_->tableViewHeightOfRow(*this, row) : 0;
}

void TableView::selectRow(int row) {
    update(selected_, isShown(row) ? row : noSelection, Property::SelectedRow);
}

void TableView::clickRow(int row) {
    if (!isShown(row)) {
        return;
    }
    if (!delegate_ || delegate_->tableViewShouldSelectRow(*this, row)) {
        selectRow(row);
    }
}

namespace {

TextField* cellField(const std::shared_ptr<TableCellView>& cell) {
    return cell ? cell->textField() : nullptr;
}

} // namespace

std::optional<std::string> cellText(TableView& table, int column, int row) {
    const auto cell = std::dynamic_pointer_cast<TableCellView>(table.viewAt(column, row));
    if (TextField* field = cellField(cell)) {
        return field->text();
    }
    return std::nullopt;
}

std::optional<Rgba> cellTextColor(TableView& table, int column, int row) {
    const auto cell = std::dynamic_pointer_cast<TableCellView>(table.viewAt(column, row));
    if (TextField* field = cellField(cell)) {
        return field->textColor();
    }
    return std::nullopt;
}

} // namespace velmora
