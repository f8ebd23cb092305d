#include "ui/qt/titled_cell_delegate.h"

#include <QApplication>
#include <QPainter>

namespace velmora::qt {
namespace {

const QColor captionInk(0x5f, 0x68, 0x7d);
constexpr int padding = 6;

} // namespace

void TitledCellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                               const QModelIndex& index) const {
    QStyleOptionViewItem cell(option);
    initStyleOption(&cell, index);
    // The model's text: the option's has its line breaks turned into line separators.
    const QString text = index.data(Qt::DisplayRole).toString();
    cell.text.clear(); // the style paints the background and the selection only
    const QWidget* widget = cell.widget;
    QStyle* style = widget ? widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, widget);

    const QRect area = cell.rect.adjusted(padding, 0, -padding, 0);
    const qsizetype cut = text.indexOf('\n');
    const QString title = text.left(cut);
    const QString rest = cut < 0 ? QString() : text.mid(cut + 1).replace('\n', ' ');
    QFont titleFont = cell.font;
    titleFont.setBold(true);
    const QFontMetrics titleMetrics(titleFont);
    const QFontMetrics restMetrics(cell.font);
    const int height = titleMetrics.height() + (rest.isEmpty() ? 0 : restMetrics.height());
    const bool selected = cell.state & QStyle::State_Selected;
    const QColor ink = cell.palette.color(selected ? QPalette::HighlightedText : QPalette::Text);

    painter->save();
    int top = area.top() + (area.height() - height) / 2;
    painter->setFont(titleFont);
    painter->setPen(ink);
    painter->drawText(QRect(area.left(), top, area.width(), titleMetrics.height()),
                      Qt::AlignLeft | Qt::AlignVCenter,
                      titleMetrics.elidedText(title, Qt::ElideRight, area.width()));
    if (!rest.isEmpty()) {
        top += titleMetrics.height();
        painter->setFont(cell.font);
        painter->setPen(selected ? ink : captionInk);
        painter->drawText(QRect(area.left(), top, area.width(), restMetrics.height()),
                          Qt::AlignLeft | Qt::AlignVCenter,
                          restMetrics.elidedText(rest, Qt::ElideRight, area.width()));
    }
    painter->restore();
}

} // namespace velmora::qt
