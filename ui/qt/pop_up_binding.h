#pragma once

// A pop-up button on a combo box: its items and selection follow the element; the user's pick is
// the element's pick.

#include "ui/pop_up_button.h"
#include "ui/qt/view_binding.h"

#include <QComboBox>

namespace velmora::qt {

class PopUpBinding final : public WidgetBinding<PopUpButton, QComboBox> {
public:
    PopUpBinding(PopUpButton& popUp, QComboBox* widget);

protected:
    void apply(Property property) override;

private:
    void showSelection();
};

} // namespace velmora::qt
