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
        // Showing a widget that is not hidden would polish it at once, before the window is
        // styled, and every style sheet set later would then restyle it again.
        if (widget_->isHidden() != view_.isHidden()) {
            widget_->setHidden(view_.isHidden());
        }
        break;
    case Property::BackgroundColor:
    case Property::BorderWidth:
    case Property::BorderColor:
    case Property::CornerRadius: {
        // Setting a style sheet restyles the widget and all it holds, the same one included:
        // done four times for each element as the window is bound, that was most of start-up.
        const QString sheet = layerStyleSheet(widget_->objectName(), view_);
        if (sheet != widget_->styleSheet()) {
            widget_->setStyleSheet(sheet);
        }
        break;
    }
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
