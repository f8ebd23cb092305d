#include "search/entry_checks.h"

#include "ui/view_controller.h"

namespace velmora {

void clearEntry(TextField& field) {
    field.setText({});
}

void clearEntry(FieldEditor& editor) {
    editor.setString({});
}

// The per-change check follows the locale as it is now; the end-of-editing check and the
// messages use the separator the window started with.
std::string ViewController::currentDecimalSeparator() const {
    const std::string separator = environment_.locale.decimalSeparator();
    return separator.empty() ? "." : separator;
}

DecimalSeparators ViewController::decimalSeparators() const {
    return {decimalSeparator, currentDecimalSeparator()};
}

void ViewController::controlTextDidChange(TextField* object) {
    if (!object) {
        return;
    }
    if (object != &txt_leftRIReading && object != &txt_leftSG && object != &txt_leftHardness) {
        environment_.standardOutput << "unsupported" << std::endl;
        return;
    }
    if (const auto alert = typedEntryAlert(object->text(), decimalSeparators())) {
        showAlert({}, *alert, AlertStyle::Warning);
        clearEntry(*object);
    }
}

// Editing always ends; a rejected text leaves the entry empty.
bool ViewController::controlTextShouldEndEditing(TextField&, FieldEditor& editor) {
    if (const auto alert = finishedEntryAlert(editor.string(), decimalSeparators())) {
        showAlert({}, *alert, AlertStyle::Warning);
        clearEntry(editor);
    }
    return true;
}

} // namespace velmora
