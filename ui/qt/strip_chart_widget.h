#pragma once

// Paints a strip chart element: the readings as a line from the left edge (half a minute ago) to
// the right (now), the steady band as a green strip and the captures as dots. Painted with
// QPainter alone: a charting module would cost the window's start-up more than this whole panel.

#include "ui/strip_chart.h"

#include <QWidget>

namespace velmora::qt {

class StripChartWidget final : public QWidget {
public:
    explicit StripChartWidget(QWidget* parent = nullptr);

    // The chart must outlive the widget, or be unset first.
    void setChart(const StripChart* chart);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const StripChart* chart_ = nullptr;
};

} // namespace velmora::qt
