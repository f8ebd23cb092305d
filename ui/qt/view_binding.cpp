#include "ui/qt/view_binding.h"

#include "ui/control.h"
#include "ui/qt/layer_style.h"

namespace velmora::qt {

ViewBinding::ViewBinding(View& view, QWidget* widget)
    : ElementBinding(view), view_(view), widget_(widget) {
    // A plain widget paints a style sheet's background only when asked to.
    widget_->setAttribute(Qt::WA_StyledBackground);
}

void ViewBinding::apply(Property property) {
    if (!widget_) {
        return;
    }
    switch (property) {
    case Property::Hidden:
        widget_->setHidden(view_.isHidden());
        break;
    case Property::BackgroundColor:
    case Property::BorderWidth:
    case Property::BorderColor:
    case Property::CornerRadius:
        widget_->setStyleSheet(layerStyleSheet(widget_->objectName(), view_));
        break;
    case Property::Enabled:
        if (const auto* control = dynamic_cast<const Control*>(&view_)) {
            widget_->setEnabled(control->isEnabled());
        }
        break;
    default:
        break;
    }
}

} // namespace velmora::qt
