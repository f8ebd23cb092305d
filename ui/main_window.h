#pragma once

// The main window as its interface file lays it out: every named element of the element list,
// owned here, and the keyboard focus that decides which entry the user is typing into. The
// controller refers to the elements by these names; the platform binding maps each to its widget.

#include "ui/button.h"
#include "ui/layout_constraint.h"
#include "ui/main_window_elements.h"
#include "ui/pop_up_button.h"
#include "ui/strip_chart.h"
#include "ui/tab_view.h"
#include "ui/table_view.h"
#include "ui/text_field.h"
#include "ui/text_view.h"
#include "ui/view.h"

#include <string>
#include <string_view>
#include <vector>

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
    // Ends the current editing, if its delegate agrees (a field disabled meanwhile is not asked),
    // and starts editing the field (nothing: no field). A disabled or read-only field cannot take
    // the keyboard. True when the focus is where it was asked to be.
    bool makeFirstResponder(TextField* field);
    // Typing at the end of the edited entry, one character (Unicode scalar) at a time; its
    // delegate hears of every change.
    void insertText(std::string_view typed);
    // A key pressed while no entry has the keyboard clicks the enabled button it is the key
    // equivalent of. False when nothing took it: an entry being edited takes its keys itself.
    bool performKeyEquivalent(std::string_view key);

#define VELMORA_ELEMENT_MEMBER(Type, name, ...) Type name{__VA_ARGS__};
#define VELMORA_CONSTRAINT_MEMBER(name, view) LayoutConstraint name;
    VELMORA_MAIN_WINDOW_ELEMENTS(VELMORA_ELEMENT_MEMBER, VELMORA_CONSTRAINT_MEMBER)
#undef VELMORA_ELEMENT_MEMBER
#undef VELMORA_CONSTRAINT_MEMBER

private:
    void changedByTyping(TextField& field, std::string text);

    std::string title_;
    TextField* editing_ = nullptr;
};

} // namespace velmora
