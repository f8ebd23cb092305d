#pragma once

// Draws a cell of two lines as a title and what it names: the first line bold, the rest on one
// line below it in the caption colour, each cut short with an ellipsis rather than wrapped, so
// every row keeps its height and the titles line up down the table.

#include <QStyledItemDelegate>

namespace velmora::qt {

class TitledCellDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
};

} // namespace velmora::qt
