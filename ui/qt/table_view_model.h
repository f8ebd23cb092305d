#pragma once

// The table element as a Qt item model: the rows it counted at its last reload, each cell's text
// as the table's delegate makes the cell, and each row as high as the delegate says. The
// interface file may give each column a style: "28px bold right" sets the font's pixel size,
// its weight and the alignment, so a figure meant to be read from afar can be large; "titled"
// draws a two-line cell as a title and what it names.

#include "ui/table_view.h"

#include <QAbstractTableModel>
#include <QFont>
#include <QStringList>
#include <optional>
#include <vector>

namespace velmora::qt {

class TableViewModel final : public QAbstractTableModel {
public:
    // The column titles, in column order, come from the interface file.
    TableViewModel(TableView& table, QStringList columnTitles, const QStringList& columnStyles,
                   QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

    bool isTitled(int column) const;

    // The table has counted its rows anew: every row may have changed.
    void reload();

private:
    struct ColumnStyle {
        std::optional<QFont> font;
        bool right = false;
        bool titled = false;
    };

    Qt::Alignment alignment(int column) const;

    TableView& table_;
    QStringList columnTitles_;
    std::vector<ColumnStyle> columnStyles_;
};

} // namespace velmora::qt
