#pragma once

// The table on a table view. The view shows the element's rows through a TableViewModel; a row
// the user picks (click or arrow keys) is the element's click, which its delegate may refuse,
// and a row the program selects is selected and scrolled to in the view.

#include "ui/qt/table_view_model.h"
#include "ui/qt/view_binding.h"

#include <QTableView>

namespace velmora::qt {

class TableBinding final : public WidgetBinding<TableView, QTableView> {
public:
    TableBinding(TableView& table, QTableView* widget);

protected:
    void apply(Property property) override;

private:
    void userSelected();
    void showSelection();

    TableViewModel* model_;
    bool showing_ = false;
};

} // namespace velmora::qt
