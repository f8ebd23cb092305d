#include "ui/qt/strip_chart_widget.h"

#include <QPainter>
#include <QPainterPath>

namespace velmora::qt {
namespace {

const QColor lineColor(18, 27, 50);
const QColor bandColor(52, 199, 89, 70);
const QColor captureColor(255, 59, 48);
const QColor gridColor(220, 220, 224);
const QColor labelColor(110, 110, 115);

} // namespace

StripChartWidget::StripChartWidget(QWidget* parent) : QWidget(parent) {
    // Every pixel is painted each time: Qt need not clear the background first.
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void StripChartWidget::setChart(const StripChart* chart) {
    chart_ = chart;
    update();
}

void StripChartWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    const auto range = chart_ ? chart_->valueRange() : std::nullopt;
    if (!range) {
        painter.setPen(labelColor);
        painter.drawText(rect(), Qt::AlignCenter, tr("Readings of the last 30 s show here"));
        return;
    }
    const QFontMetrics metrics = painter.fontMetrics();
    const QRectF plot = QRectF(rect()).adjusted(metrics.horizontalAdvance("0.0000") + 8, 6, -6,
                                                -metrics.height() - 4);
    const double span = static_cast<double>(StripChart::span.count());
    const auto x = [&](std::chrono::milliseconds time) {
        return plot.right() -
               static_cast<double>((chart_->now() - time).count()) / span * plot.width();
    };
    const auto y = [&](double value) {
        return plot.bottom() - (value - range->low) / (range->high - range->low) * plot.height();
    };

    // Three values up the side and the time along the bottom, so the scale reads at a glance.
    painter.setPen(gridColor);
    painter.drawRect(plot);
    painter.setPen(labelColor);
    for (const double value : {range->low, (range->low + range->high) / 2, range->high}) {
        const double level = y(value);
        painter.drawText(
            QRectF(0, level - metrics.height() / 2.0, plot.left() - 6, metrics.height()),
            Qt::AlignRight | Qt::AlignVCenter, QString::number(value, 'f', 3));
    }
    painter.drawText(QRectF(plot.left(), plot.bottom() + 2, plot.width(), metrics.height()),
                     Qt::AlignLeft, tr("-30 s"));
    painter.drawText(QRectF(plot.left(), plot.bottom() + 2, plot.width(), metrics.height()),
                     Qt::AlignRight, tr("now"));

    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(plot);
    if (const auto& band = chart_->band()) {
        painter.fillRect(
            QRectF(QPointF(plot.left(), y(band->high)), QPointF(plot.right(), y(band->low))),
            bandColor);
    }
    QPainterPath line;
    bool drawing = false;
    for (const ChartPoint& point : chart_->readings()) {
        if (!point.value) {
            drawing = false;
            continue;
        }
        const QPointF at(x(point.time), y(*point.value));
        drawing ? line.lineTo(at) : line.moveTo(at);
        drawing = true;
    }
    painter.setPen(QPen(lineColor, 2));
    painter.drawPath(line);
    painter.setPen(QPen(Qt::white, 1.5));
    painter.setBrush(captureColor);
    for (const ChartPoint& capture : chart_->captures()) {
        painter.drawEllipse(QPointF(x(capture.time), y(*capture.value)), 5, 5);
    }
}

} // namespace velmora::qt
