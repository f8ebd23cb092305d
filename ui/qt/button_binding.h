#pragma once

// A push button or a check box. A click on the widget is the element's click: a check box's
// state then follows the element, which turns it as a desktop check box does.

#include "ui/button.h"
#include "ui/qt/view_binding.h"

#include <QAbstractButton>

namespace velmora::qt {

class ButtonBinding final : public WidgetBinding<Button, QAbstractButton> {
public:
    ButtonBinding(Button& button, QAbstractButton* widget);

protected:
    void apply(Property property) override;
};

} // namespace velmora::qt
