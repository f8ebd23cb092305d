#include "ui/qt/table_view_model.h"

#include "ui/main_window.h"
#include "ui/qt/window_style.h"

#include <QSize>

namespace velmora::qt {

TableViewModel::TableViewModel(TableView& table, QStringList columnTitles,
                               const QStringList& columnStyles, QObject* parent)
    : QAbstractTableModel(parent), table_(table), columnTitles_(std::move(columnTitles)) {
    for (const QString& style : columnStyles) {
        ColumnStyle column;
        for (const QString& word : style.split(' ', Qt::SkipEmptyParts)) {
            if (word == "right" || word == "titled") {
                (word == "right" ? column.right : column.titled) = true;
                continue;
            }
            QFont& font = column.font ? *column.font : column.font.emplace();
            if (word == "bold") {
                font.setBold(true);
            } else if (word.endsWith("px")) {
                font.setPixelSize(word.chopped(2).toInt());
            }
        }
        columnStyles_.push_back(column);
    }
}

int TableViewModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : table_.numberOfRows();
}

int TableViewModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(table_.columns().size());
}

// Numbers line up on their last digit.
Qt::Alignment TableViewModel::alignment(int column) const {
    const bool right =
        table_.columns()[static_cast<std::size_t>(column)].identifier == MainWindow::idColumn ||
        (column < static_cast<int>(columnStyles_.size()) &&
         columnStyles_[static_cast<std::size_t>(column)].right);
    return (right ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
}

bool TableViewModel::isTitled(int column) const {
    return column < static_cast<int>(columnStyles_.size()) &&
           columnStyles_[static_cast<std::size_t>(column)].titled;
}

QVariant TableViewModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid)) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole: // the whole text of a cell cut short
        if (const auto text = cellText(table_, index.column(), index.row())) {
            return QString::fromStdString(*text);
        }
        return {};
    case Qt::ForegroundRole:
        if (const auto color = cellTextColor(table_, index.column(), index.row())) {
            return toQColor(*color);
        }
        return {};
    case Qt::SizeHintRole:
        return QSize(-1, qRound(table_.heightOfRow(index.row())));
    case Qt::TextAlignmentRole:
        return int(alignment(index.column()));
    case Qt::FontRole:
        if (index.column() < static_cast<int>(columnStyles_.size())) {
            if (const auto& font = columnStyles_[static_cast<std::size_t>(index.column())].font) {
                return *font;
            }
        }
        return {};
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
        return int(alignment(section));
    }
    return {};
}

void TableViewModel::reload() {
    beginResetModel();
    endResetModel();
}

} // namespace velmora::qt
