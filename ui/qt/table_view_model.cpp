#include "ui/qt/table_view_model.h"

#include "ui/main_window.h"

#include <QSize>

namespace velmora::qt {

TableViewModel::TableViewModel(TableView& table, QStringList columnTitles, QObject* parent)
    : QAbstractTableModel(parent), table_(table), columnTitles_(std::move(columnTitles)) {}

int TableViewModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : table_.numberOfRows();
}

int TableViewModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(table_.columns().size());
}

bool TableViewModel::isIdColumn(int column) const {
    return table_.columns()[static_cast<std::size_t>(column)].identifier == MainWindow::idColumn;
}

QVariant TableViewModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid)) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        if (const auto text = cellText(table_, index.column(), index.row())) {
            return QString::fromStdString(*text);
        }
        return {};
    case Qt::SizeHintRole:
        return QSize(-1, qRound(table_.heightOfRow(index.row())));
    case Qt::TextAlignmentRole:
        // Numbers line up on their last digit.
        return isIdColumn(index.column()) ? int(Qt::AlignRight | Qt::AlignVCenter)
                                          : int(Qt::AlignLeft | Qt::AlignVCenter);
    default:
        return {};
    }
}

QVariant TableViewModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) {
        return {};
    }
    if (role == Qt::DisplayRole) {
        return columnTitles_.value(section);
    }
    if (role == Qt::TextAlignmentRole) {
        return isIdColumn(section) ? int(Qt::AlignRight | Qt::AlignVCenter)
                                   : int(Qt::AlignLeft | Qt::AlignVCenter);
    }
    return {};
}

void TableViewModel::reload() {
    beginResetModel();
    endResetModel();
}

} // namespace velmora::qt
