#pragma once

// The table element as a Qt item model: the rows it counted at its last reload, each cell's text
// as the table's delegate makes the cell, and each row as high as the delegate says.

#include "ui/table_view.h"

#include <QAbstractTableModel>
#include <QStringList>

namespace velmora::qt {

class TableViewModel final : public QAbstractTableModel {
public:
    // The column titles, in column order, come from the interface file.
    TableViewModel(TableView& table, QStringList columnTitles, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

    // The table has counted its rows anew: every row may have changed.
    void reload();

private:
    bool isIdColumn(int column) const;

    TableView& table_;
    QStringList columnTitles_;
};

} // namespace velmora::qt
