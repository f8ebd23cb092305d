#include "ui/field_editor.h"
#include "ui/main_window.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

TEST(PopUpButton, KeepsItsTitlesUniqueAndSelectsTheFirstItemAdded) {
    PopUpButton popUp;
    EXPECT_EQ(popUp.titleOfSelectedItem(), "");
    popUp.addItems({"Beryl", "Quartz", "Beryl", "Zircon"});
    EXPECT_EQ(popUp.itemTitles(), (std::vector<std::string>{"Beryl", "Quartz", "Zircon"}));
    EXPECT_EQ(popUp.indexOfSelectedItem(), 0);
    popUp.addItem("Quartz");
    EXPECT_EQ(popUp.numberOfItems(), 3);
    popUp.selectItem(3);
    EXPECT_EQ(popUp.indexOfSelectedItem(), PopUpButton::noSelection);
    popUp.removeAllItems();
    popUp.addItem("Quartz"); // a title removed may come back
    EXPECT_EQ(popUp.itemTitles(), std::vector<std::string>{"Quartz"});
}

TEST(ViewElement, TellsItsObserverOfRealChangesOnly) {
    TextField field;
    std::vector<Property> seen;
    field.setObserver([&](Property p) { seen.push_back(p); });
    field.setText("1.5");
    field.setText("1.5");
    field.setEnabled(false);
    field.setEnabled(false);
    EXPECT_EQ(seen, (std::vector<Property>{Property::Text, Property::Enabled}));
}

TEST(Button, ACheckBoxTogglesBeforeItsActionAndADisabledOneIgnoresClicks) {
    Button box(ButtonType::CheckBox);
    std::vector<ButtonState> states;
    box.setAction([&](Button& sender) { states.push_back(sender.state()); });
    box.performClick();
    box.performClick();
    box.setState(ButtonState::Mixed);
    box.performClick();
    box.setEnabled(false);
    box.performClick();
    EXPECT_EQ(states,
              (std::vector<ButtonState>{ButtonState::On, ButtonState::Off, ButtonState::On}));
}

class CountingSource final : public TableViewDataSource, public TableViewDelegate {
public:
    int numberOfRowsInTableView(TableView&) override { return rows; }
    std::shared_ptr<View> tableViewViewFor(TableView&, const TableColumn*, int row) override {
        asked.push_back(row);
        return nullptr;
    }
    double tableViewHeightOfRow(TableView&, int) override { return 21; }
    bool tableViewShouldSelectRow(TableView&, int row) override { return row != 1; }

    int rows = 0;
    std::vector<int> asked;
};

TEST(TableView, ShowsTheRowsOfItsLastReloadAndAsksOnlyAboutThose) {
    MainWindow window;
    TableView& table = window.tableView;
    CountingSource source;
    table.setDataSource(&source);
    table.setDelegate(&source);
    source.rows = 3;
    EXPECT_EQ(table.numberOfRows(), 0);
    table.reloadData();
    source.rows = 2;
    EXPECT_EQ(table.numberOfRows(), 3);
    table.viewAt(0, 2);
    table.viewAt(0, 3);
    table.viewAt(2, 0);
    EXPECT_EQ(source.asked, std::vector<int>{2});
    // A click selects when the delegate agrees; a reload drops a row that is no longer there.
    table.clickRow(2);
    table.clickRow(1);
    EXPECT_EQ(table.selectedRow(), 2);
    table.reloadData();
    EXPECT_EQ(table.selectedRow(), TableView::noSelection);
}

TEST(MainWindow, TypingGoesToTheFocusedEntryOneCharacterAtATime) {
    MainWindow window;
    struct Recorder final : TextFieldDelegate {
        void controlTextDidChange(TextField* f) override { texts.push_back(f->text()); }
        bool controlTextShouldEndEditing(TextField&, FieldEditor& e) override {
            texts.push_back("end:" + e.string());
            return allowEnd;
        }
        std::vector<std::string> texts;
        bool allowEnd = false;
    } recorder;
    window.txt_leftSG.setDelegate(&recorder);
    window.insertText("x"); // nothing focused
    ASSERT_TRUE(window.makeFirstResponder(&window.txt_leftSG));
    window.insertText("2\xC3\xA9");
    window.deleteBackward();
    EXPECT_FALSE(window.makeFirstResponder(nullptr));
    recorder.allowEnd = true;
    EXPECT_TRUE(window.makeFirstResponder(nullptr));
    EXPECT_EQ(recorder.texts, (std::vector<std::string>{"2", "2\xC3\xA9", "2", "end:2", "end:2"}));
    window.txt_leftSG.setEnabled(false);
    EXPECT_FALSE(window.makeFirstResponder(&window.txt_leftSG));
    EXPECT_FALSE(window.makeFirstResponder(&window.lbl_stonesCount)); // read-only
}

} // namespace
} // namespace velmora::test
