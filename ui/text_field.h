#pragma once

// A one-line text field: an entry the user types into, or a label the program writes.

#include "foundation/rgba.h"
#include "ui/control.h"

#include <optional>
#include <string>

namespace velmora {

class TextField;
class FieldEditor;

// What a text field asks of its delegate while the user edits it.
class TextFieldDelegate {
public:
    virtual ~TextFieldDelegate() = default;
    // After every change the user makes; the object is the edited control, if any.
    virtual void controlTextDidChange(TextField* object) = 0;
    // When editing is about to end; no keeps the field in editing.
    virtual bool controlTextShouldEndEditing(TextField& control, FieldEditor& editor) = 0;
};

class TextField : public Control {
public:
    const std::string& text() const { return text_; }
    // Setting the text from the program tells the delegate nothing: only typing is checked.
    void setText(std::string text) { update(text_, std::move(text), Property::Text); }

    // A table cell's text colour; nothing: the interface file's. The window's own fields are
    // coloured by the interface file alone.
    const std::optional<Rgba>& textColor() const { return textColor_; }
    void setTextColor(std::optional<Rgba> color) { update(textColor_, color, Property::TextColor); }

    bool isEditable() const { return editable_; }
    void setEditable(bool editable) { update(editable_, editable, Property::Editable); }

    TextFieldDelegate* delegate() const { return delegate_; }
    void setDelegate(TextFieldDelegate* delegate) { delegate_ = delegate; }

private:
    std::string text_;
    std::optional<Rgba> textColor_;
    bool editable_ = true;
    TextFieldDelegate* delegate_ = nullptr;
};

} // namespace velmora
