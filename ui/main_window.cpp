#include "ui/main_window.h"

#include "ui/field_editor.h"

#include <concepts>
#include <type_traits>
#include <unicode/utf8.h>

namespace velmora {

MainWindow::MainWindow() {
    // The tags the actions read: navigation 0 to 3, criteria 0 to 4.
    btn_RIReading.setTag(0);
    bvtn_dictionary.setTag(1);
    btn_tutorial.setTag(2);
    btn_contactUs.setTag(3);
    check_RI.setTag(0);
    check_sg.setTag(1);
    check_hardness.setTag(2);
    check_color.setTag(3);
    check_Name.setTag(4);

    for (TextField* label :
         {&usb_device_reading, &lbl_deviceStatus, &lbl_stonesCount, &lbl_bestMatchesNote}) {
        label->setEditable(false);
    }

    for (const char* cell : {idCell, titleCell}) {
        tableView.registerCellView(cell, [] { return std::make_shared<TableCellView>(); });
    }
}

bool MainWindow::makeFirstResponder(TextField* field) {
    if (field == editing_) {
        return true;
    }
    if (field && (!field->isEnabled() || !field->isEditable())) {
        return false;
    }
    // A field disabled while it was edited has had its editing aborted: there is nothing left to
    // check, as when a tab change empties and locks the entry that still holds the keyboard.
    if (editing_ && editing_->isEnabled()) {
        if (TextFieldDelegate* delegate = editing_->delegate()) {
            FieldEditor editor(*editing_);
            if (!delegate->controlTextShouldEndEditing(*editing_, editor)) {
                return false;
            }
        }
    }
    editing_ = field;
    return true;
}

void MainWindow::changedByTyping(TextField& field, std::string text) {
    field.setText(std::move(text));
    if (TextFieldDelegate* delegate = field.delegate()) {
        delegate->controlTextDidChange(&field);
    }
}

void MainWindow::insertText(std::string_view typed) {
    const auto length = static_cast<int32_t>(typed.size());
    int32_t i = 0;
    while (editing_ && i < length) {
        const int32_t start = i;
        U8_FWD_1(typed.data(), i, length);
        changedByTyping(*editing_, editing_->text() + std::string(typed.substr(
                                                          static_cast<std::size_t>(start),
                                                          static_cast<std::size_t>(i - start))));
    }
}

bool MainWindow::performKeyEquivalent(std::string_view key) {
    if (editing_) {
        return false;
    }
    Button* target = nullptr;
    const auto consider = [&](auto& element) {
        if constexpr (std::same_as<std::remove_cvref_t<decltype(element)>, Button>) {
            if (!target && element.isEnabled() && element.keyEquivalent() == key) {
                target = &element;
            }
        }
    };
#define VELMORA_CONSIDER_ELEMENT(Type, name, ...) consider(name);
#define VELMORA_SKIP_CONSTRAINT(name, view)
    VELMORA_MAIN_WINDOW_ELEMENTS(VELMORA_CONSIDER_ELEMENT, VELMORA_SKIP_CONSTRAINT)
#undef VELMORA_CONSIDER_ELEMENT
#undef VELMORA_SKIP_CONSTRAINT
    if (!target) {
        return false;
    }
    target->performClick();
    return true;
}

} // namespace velmora
