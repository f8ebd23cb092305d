#include "ui/button.h"

namespace velmora {

void Button::performClick() {
    if (!isEnabled()) {
        return;
    }
    if (type_ == ButtonType::CheckBox) {
        setState(state_ == ButtonState::On ? ButtonState::Off : ButtonState::On);
    }
    if (action_) {
        action_(*this);
    }
}

} // namespace velmora
