#pragma once

// The text object that holds the text of the field being edited. The window has one and lends
// it to whichever field has the keyboard; here it reads and writes that field's text directly,
// so the field and its editor never disagree.

#include "ui/text_field.h"

#include <string>

namespace velmora {

class FieldEditor {
public:
    explicit FieldEditor(TextField& field) : field_(field) {}

    const std::string& string() const { return field_.text(); }
    void setString(std::string text) { field_.setText(std::move(text)); }

private:
    TextField& field_;
};

} // namespace velmora
