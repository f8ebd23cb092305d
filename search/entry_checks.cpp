#include "search/number_entry.h"
#include "ui/view_controller.h"

namespace velmora {
void clearEntry(TextField& field) {
    field.setText({});
}

void clearEntry(FieldEditor& editor) {
    editor.setString({});
}

// The per-change check follows the locale as it is now; the end-of-editing check and the
// messages use the separator the window started with. They differ only when the user changes
// the locale while the window is open.
std::string ViewController::currentDecimalSeparator() const {
    const std::string separator = environment_.locale.decimalSeparator();
    return separator.empty() ? "." : separator;
}

bool ViewController::isNumberOnly(const std::string& text) const {
    return velmora::isNumberOnly(text, currentDecimalSeparator());
}

bool ViewController::usesOwnSeparator(const std::string& text) const {
    return text.find(foreignSeparator(currentDecimalSeparator())) == std::string::npos;
}

bool ViewController::hasOnlyNumberCharacters(const std::string& text) const {
    return velmora::isNumberOnly(text, decimalSeparator);
}

void ViewController::rejectForeignSeparator(TextField& entry) {
    showAlert({}, "Please use '" + decimalSeparator + "' as decimals!", AlertStyle::Warning);
    clearEntry(entry);
}

void ViewController::controlTextDidChange(TextField* object) {
    if (!object) {
        return;
    }
    if (object != &txt_leftRIReading && object != &txt_leftSG && object != &txt_leftHardness) {
        environment_.standardOutput << "unsupported" << std::endl;
        return;
    }
    const std::string& text = object->text();
    if (!usesOwnSeparator(text)) {
        rejectForeignSeparator(*object);
    } else if (!isNumberOnly(text)) {
        showAlert({}, notANumberMessage, AlertStyle::Warning);
        clearEntry(*object);
    }
}

// Editing always ends; a rejected text leaves the entry empty.
bool ViewController::controlTextShouldEndEditing(TextField&, FieldEditor& editor) {
    const std::string& text = editor.string();
    if (text.empty() || !hasOnlyNumberCharacters(text)) {
        showAlert({}, notANumberMessage, AlertStyle::Warning);
        clearEntry(editor);
    }
    return true;
}

} // namespace velmora
