#include "foundation/text.h"
#include "ui/stone_display.h"
#include "ui/view_controller.h"

namespace velmora {
namespace {

constexpr double rowHeight = 21.0;

// The first listed stone bearing the name, or the list's size when none does.
std::size_t firstNamed(const StoneList& stones, std::string_view name) {
    for (std::size_t i = 0; i < stones.size(); ++i) {
        if (text::equals(stones[i].StoneName, name)) {
            return i;
        }
    }
    return stones.size();
}

} // namespace

void ViewController::refreshResults() {
    tableView.reloadData();
    btn_stonesList.removeAllItems();
    arr_string.clear();
    arr_string.reserve(arr_stones.size());
    for (const Stones& stone : arr_stones) {
        arr_string.push_back(stone.StoneName);
    }
    btn_stonesList.addItems(arr_string);
    lbl_stonesCount.setText(std::to_string(arr_stones.size()));
    for (TextView* description : {&txt_commonSource, &txt_otherProduct, &txt_otherInformation}) {
        description->setText({});
    }
    for (TextField* detail : {&txt_stroneFamily, &txt_bierfence, &txt_hardness, &txt_RI, &txt_sg}) {
        detail->setText({});
    }
}

void ViewController::showStoneDetail(const Stones& stone) {
    txt_commonSource.setText(withCommas(stone.Description1));
    txt_otherProduct.setText(withCommas(stone.Description3));
    txt_otherInformation.setText(withCommas(stone.Description2));
    txt_stroneFamily.setText(familyText(stone.StoneFamily));
    txt_bierfence.setText(inUserNotation(stone.Birefringence, decimalSeparator));
    txt_hardness.setText(inUserNotation(stone.Hardness, decimalSeparator));
    txt_RI.setText(inUserNotation(stone.Ri, decimalSeparator));
    txt_sg.setText(inUserNotation(stone.SgRange, decimalSeparator));
}

int ViewController::numberOfRowsInTableView(TableView&) {
    return static_cast<int>(arr_stones.size());
}

std::shared_ptr<View> ViewController::tableViewViewFor(TableView& table, const TableColumn* column,
                                                       int row) {
    // A search that ends early leaves the table showing rows of the list before it, so the table
    // may ask about rows the list no longer has: those have no stone, no cell and no detail.
    const Stones* stone = itemAt(arr_stones, row);
    if (!stone) {
        return nullptr;
    }
    const bool idColumn = column && column->identifier == MainWindow::idColumn;
    return table.makeTextCell(idColumn ? MainWindow::idCell : MainWindow::titleCell,
                              idColumn ? stoneNumberText(stone->StoneID, row) : stone->StoneName);
}

double ViewController::tableViewHeightOfRow(TableView&, int) {
    return rowHeight;
}

bool ViewController::tableViewShouldSelectRow(TableView&, int row) {
    const Stones* listed = itemAt(arr_stones, row);
    if (!listed) {
        return false;
    }
    const Stones& stone = *listed;
    showStoneDetail(stone);
    // The pop-up holds each name once, so after a repeated name its item numbers no longer
    // follow the rows: the item is found by the title of the first stone of that name, which
    // keeps the two in step.
    const std::size_t first = firstNamed(arr_stones, stone.StoneName);
    btn_stonesList.selectItem(btn_stonesList.indexOfItem(arr_stones[first].StoneName));
    return true;
}

void ViewController::btn_stoneListChange(PopUpButton& sender) {
    const std::size_t i = firstNamed(arr_stones, sender.titleOfSelectedItem());
    if (i == arr_stones.size()) {
        return;
    }
    showStoneDetail(arr_stones[i]);
    tableView.selectRow(static_cast<int>(i));
}

void ViewController::tabViewDidSelectTabViewItem(TabView& tabView) {
    const int page = tabView.indexOfSelectedItem();
    lbl_stonesListCaption.setHidden(page != stonesListedPage);
    btn_stonesList.setHidden(page != stonesListedPage);
    view_detailPanel.setHidden(page == recordsPage);
    if (page == recordsPage) {
        showRecords();
    }
}

} // namespace velmora
