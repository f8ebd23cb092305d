#pragma once

// The main window as its interface file lays it out: every named element, owned here, and the
// keyboard focus that decides which entry the user is typing into. The controller refers to the
// elements by these names; the platform binding maps each to its widget.

#include "ui/button.h"
#include "ui/layout_constraint.h"
#include "ui/pop_up_button.h"
#include "ui/table_view.h"
#include "ui/text_field.h"
#include "ui/text_view.h"
#include "ui/view.h"

#include <string>
#include <string_view>

namespace velmora {

class MainWindow : public ViewElement {
public:
    // The table's number column; every other column shows the name.
    static constexpr const char* idColumn = "idColumn";
    static constexpr const char* idCell = "IdCell";
    static constexpr const char* titleCell = "titleCell";

    MainWindow();

    const std::string& title() const { return title_; }
    void setTitle(std::string title) { update(title_, std::move(title), Property::Title); }

    // The entry being edited, if any.
    TextField* firstResponder() const { return editing_; }
    // Ends the current editing, if its delegate agrees, and starts editing the field (nothing:
    // no field). A disabled or read-only field cannot take the keyboard. True when the focus
    // is where it was asked to be.
    bool makeFirstResponder(TextField* field);
    // Typing at the end of the edited entry, one character (Unicode scalar) at a time; its
    // delegate hears of every change.
    void insertText(std::string_view typed);
    // Deletes the last character of the edited entry.
    void deleteBackward();

    View view; // the root view

    // Top bar and navigation
    View box;
    Button btn_RIReading;
    Button bvtn_dictionary;
    Button btn_tutorial;
    Button btn_contactUs;
    View border_RiReading;
    View border_dictionary;

    // Search form
    View view_leftPanel;
    Button check_RI{ButtonType::CheckBox};
    Button check_sg{ButtonType::CheckBox};
    Button check_hardness{ButtonType::CheckBox};
    Button check_color{ButtonType::CheckBox};
    Button check_Name{ButtonType::CheckBox};
    View check_Name_Container;
    TextField txt_leftRIReading;
    TextField txt_leftSG;
    TextField txt_leftHardness;
    TextField txt_left_name;
    PopUpButton btn_color;
    View view_color;
    Button btn_search;
    Button btn_enter;
    Button btn_clearAll;
    Button btn_reset;

    // Live reading panel
    View view_reading;
    LayoutConstraint reading_container_heightConstraint;
    TextField usb_device_reading;
    View view_deviceStatus;
    TextField lbl_deviceStatus;
    Button btn_connected;
    Button btn_disconnected;

    // Results and detail
    PopUpButton btn_stonesList;
    TextField lbl_stonesCount;
    TableView tableView;
    TextField txt_RI;
    TextField txt_sg;
    TextField txt_hardness;
    TextField txt_bierfence;
    TextField txt_stroneFamily;
    TextView txt_commonSource;
    TextView txt_otherInformation;
    TextView txt_otherProduct;

private:
    void changedByTyping(TextField& field, std::string text);

    std::string title_;
    TextField* editing_ = nullptr;
};

} // namespace velmora
