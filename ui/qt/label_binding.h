#pragma once

// A text field that only shows what the program writes: a status, a count, the live reading.

#include "ui/qt/view_binding.h"
#include "ui/text_field.h"

#include <QLabel>

namespace velmora::qt {

class LabelBinding final : public WidgetBinding<TextField, QLabel> {
public:
    LabelBinding(TextField& field, QLabel* widget);

protected:
    void apply(Property property) override;
};

} // namespace velmora::qt
