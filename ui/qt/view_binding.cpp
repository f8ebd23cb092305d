#include "ui/qt/view_binding.h"

#include "ui/control.h"
#include "ui/qt/window_style.h"

namespace velmora::qt {

ViewBinding::ViewBinding(View& view, QWidget* widget)
    : ElementBinding(view), view_(view), widget_(widget) {
    // A plain widget asks the style to paint its background (its layer) only when told to.
    widget_->setAttribute(Qt::WA_StyledBackground);
}

void ViewBinding::apply(Property property) {
    if (!widget_) {
        return;
    }
    switch (property) {
    case Property::Hidden:
        // Only a change: showing a widget not yet on screen would polish it before its window.
        if (widget_->isHidden() != view_.isHidden()) {
            widget_->setHidden(view_.isHidden());
        }
        break;
    case Property::BackgroundColor:
    case Property::BorderWidth:
    case Property::BorderColor:
    case Property::CornerRadius: {
        Layer{view_.backgroundColor() ? toQColor(*view_.backgroundColor()) : QColor(),
              static_cast<int>(view_.borderWidth()),
              view_.borderColor() ? toQColor(*view_.borderColor()) : QColor(Qt::black),
              static_cast<int>(view_.cornerRadius())}
            .setOn(*widget_);
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
