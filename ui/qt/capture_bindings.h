#pragma once

// The capture panel's own kinds of element: the strip chart on its painted widget, and the tabs
// of results and Best matches that the series' identification switches.

#include "ui/qt/strip_chart_widget.h"
#include "ui/qt/view_binding.h"
#include "ui/tab_view.h"

#include <QTabWidget>

namespace velmora::qt {

class StripChartBinding final : public WidgetBinding<StripChart, StripChartWidget> {
public:
    StripChartBinding(StripChart& chart, StripChartWidget* widget);
    ~StripChartBinding() override;
    StripChartBinding(const StripChartBinding&) = delete;
    StripChartBinding& operator=(const StripChartBinding&) = delete;

protected:
    void apply(Property property) override;
};

class TabBinding final : public WidgetBinding<TabView, QTabWidget> {
public:
    TabBinding(TabView& tabs, QTabWidget* widget);

protected:
    void apply(Property property) override;
};

} // namespace velmora::qt
