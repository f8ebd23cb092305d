#include "ui/qt/capture_bindings.h"

namespace velmora::qt {

StripChartBinding::StripChartBinding(StripChart& chart, StripChartWidget* widget)
    : WidgetBinding(chart, widget) {
    widget->setChart(&chart);
}

StripChartBinding::~StripChartBinding() {
    if (widget_) {
        widget_->setChart(nullptr);
    }
}

void StripChartBinding::apply(Property property) {
    if (widget_ && property == Property::Content) {
        // A repaint is scheduled, not done: readings arriving together paint once.
        widget_->update();
    } else {
        ViewBinding::apply(property);
    }
}

TabBinding::TabBinding(TabView& tabs, QTabWidget* widget) : WidgetBinding(tabs, widget) {
    connect(widget, &QTabWidget::currentChanged, this,
            [this](int index) { element_.userSelected(index); });
}

void TabBinding::apply(Property property) {
    if (widget_ && property == Property::SelectedItem) {
        widget_->setCurrentIndex(element_.indexOfSelectedItem());
    } else {
        ViewBinding::apply(property);
    }
}

} // namespace velmora::qt
