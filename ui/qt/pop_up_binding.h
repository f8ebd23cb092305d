#pragma once

// A pop-up button on a combo box: its items and selection follow the element; the user's pick is
// the element's pick.

#include "ui/pop_up_button.h"
#include "ui/qt/view_binding.h"

#include <QComboBox>

namespace velmora::qt {

class PopUpBinding final : public ViewBinding {
public:
    PopUpBinding(PopUpButton& popUp, QComboBox* widget);

protected:
    void apply(Property property) override;

private:
    void showSelection();

    PopUpButton& popUp_;
    QPointer<QComboBox> widget_;
};

} // namespace velmora::qt
