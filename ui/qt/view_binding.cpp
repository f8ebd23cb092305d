#include "ui/qt/view_binding.h"

#include "ui/control.h"
#include "ui/qt/layer_sheet.h"
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
        const QString rule = layerStyleSheet(widget_->objectName(), view_);
        if (LayerSheet* sheet = LayerSheet::of(*widget_)) {
            sheet->setRule(*widget_, rule);
        } else if (rule != widget_->styleSheet()) {
            widget_->setStyleSheet(rule);
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
