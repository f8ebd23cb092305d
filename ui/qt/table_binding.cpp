#include "ui/qt/table_binding.h"

#include "ui/qt/titled_cell_delegate.h"

#include <QHeaderView>
#include <QItemSelectionModel>

namespace velmora::qt {

TableBinding::TableBinding(TableView& table, QTableView* widget)
    : WidgetBinding(table, widget),
      model_(new TableViewModel(table, widget->property("columnTitles").toStringList(),
                                widget->property("columnStyles").toStringList(), this)) {
    widget->setModel(model_);
    // Widths the interface file gives the first columns; the last one takes what is left.
    const QStringList widths = widget->property("columnWidths").toStringList();
    for (int column = 0; column < widths.size(); ++column) {
        widget->setColumnWidth(column, widths[column].toInt());
    }
    for (int column = 0; column < model_->columnCount(); ++column) {
        if (model_->isTitled(column)) {
            widget->setItemDelegateForColumn(column, new TitledCellDelegate(widget));
        }
    }
    connect(widget->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &TableBinding::userSelected);
}

void TableBinding::userSelected() {
    if (showing_) {
        return;
    }
    const QModelIndexList rows = widget_->selectionModel()->selectedRows();
    if (!rows.isEmpty()) {
        element_.clickRow(rows.front().row());
    }
    // What the element selected, which is not the click when its delegate refused it.
    showSelection();
}

void TableBinding::showSelection() {
    showing_ = true;
    QItemSelectionModel* selection = widget_->selectionModel();
    const int row = element_.selectedRow();
    if (row == TableView::noSelection) {
        selection->clear();
    } else {
        const QModelIndex index = model_->index(row, 0);
        selection->setCurrentIndex(index,
                                   QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        widget_->scrollTo(index);
    }
    showing_ = false;
}

void TableBinding::apply(Property property) {
    if (!widget_) {
        return;
    }
    switch (property) {
    case Property::Rows:
        model_->reload();
        if (element_.numberOfRows() > 0) {
            // Every row is as high as the first.
            const int height = qRound(element_.heightOfRow(0));
            widget_->verticalHeader()->setMinimumSectionSize(height);
            widget_->verticalHeader()->setDefaultSectionSize(height);
        }
        // A reload drops the view's selection, not necessarily the element's.
        showSelection();
        break;
    case Property::SelectedRow:
        showSelection();
        break;
    default:
        ViewBinding::apply(property);
    }
}

} // namespace velmora::qt
