#include "records/qt/report_painter.h"

#include <QPagedPaintDevice>
#include <QPainter>
#include <QPainterPath>

namespace velmora::qt {
namespace {

// The window's own navy and slate, so the page reads as the application's.
const QColor ink(18, 27, 50);
const QColor slate(95, 104, 125);
const QColor rule(200, 204, 212);
const QColor seriesInk(30, 90, 170);

constexpr double gap = 14;
constexpr double captionWidth = 110;
constexpr double chartWidth = 190;
constexpr double chartHeight = 120;

QFont font(int pixels, bool bold = false) {
    QFont f("DejaVu Sans");
    f.setPixelSize(pixels);
    f.setBold(bold);
    return f;
}

QString text(const std::string& s) {
    return QString::fromStdString(s);
}

// Writes the text wrapped inside the width from top; returns the height taken.
double wrapped(QPainter& p, double left, double top, double width, const QString& s, const QFont& f,
               const QColor& color = ink) {
    p.setFont(f);
    p.setPen(color);
    const QRectF box(left, top, width, 10000);
    const QRectF used = p.boundingRect(box, Qt::TextWordWrap, s);
    p.drawText(box, Qt::TextWordWrap, s);
    return used.height();
}

double heading(QPainter& p, double left, double top, double width, const QString& s) {
    const double h = wrapped(p, left, top, width, s, font(12, true), slate);
    p.setPen(QPen(rule, 0.8));
    p.drawLine(QPointF(left, top + h + 2), QPointF(left + width, top + h + 2));
    return h + 8;
}

void drawChart(QPainter& p, const QRectF& box, const SeriesChart& chart) {
    p.setPen(QPen(rule, 0.8));
    p.setBrush(Qt::NoBrush);
    p.drawRect(box);
    p.setFont(font(8));
    p.setPen(slate);
    p.drawText(QRectF(box.left(), box.top() - 12, box.width(), 11), Qt::AlignLeft,
               text(chart.highText));
    p.drawText(QRectF(box.left(), box.bottom() + 2, box.width(), 11), Qt::AlignLeft,
               text(chart.lowText));
    p.drawText(QRectF(box.left(), box.bottom() + 2, box.width(), 11), Qt::AlignRight,
               "R.I. as the stone was turned");
    const QRectF plot = box.adjusted(10, 10, -10, -10);
    const auto at = [&plot](const std::pair<double, double>& point) {
        return QPointF(plot.left() + point.first * plot.width(),
                       plot.bottom() - point.second * plot.height());
    };
    p.setRenderHint(QPainter::Antialiasing);
    QPainterPath line;
    for (std::size_t i = 0; i < chart.points.size(); ++i) {
        i == 0 ? line.moveTo(at(chart.points[i])) : line.lineTo(at(chart.points[i]));
    }
    p.setPen(QPen(seriesInk, 1.2));
    p.drawPath(line);
    p.setBrush(seriesInk);
    for (const auto& point : chart.points) {
        p.drawEllipse(at(point), 2.4, 2.4);
    }
    p.setBrush(Qt::NoBrush);
}

double readings(QPainter& p, double left, double top, double width, const ReportPage& page) {
    double y = top;
    const double valueWidth = width - captionWidth - (page.chart.points.empty() ? 0 : chartWidth);
    for (const ReportLine& line : page.readings) {
        wrapped(p, left, y, captionWidth, text(line.caption), font(10), slate);
        y += std::max(
            16.0,
            wrapped(p, left + captionWidth, y, valueWidth - gap, text(line.value), font(10)) + 3);
    }
    if (!page.chart.points.empty()) {
        drawChart(p, QRectF(left + width - chartWidth, top + 12, chartWidth, chartHeight),
                  page.chart);
        y = std::max(y, top + 12 + chartHeight + 16);
    }
    return y - top;
}

double candidates(QPainter& p, double left, double top, double width, const ReportPage& page) {
    double y = top;
    for (const ReportCandidate& c : page.candidates) {
        p.setFont(font(10, true));
        p.setPen(ink);
        p.drawText(QRectF(left, y, 44, 16), Qt::AlignRight, text(c.fit));
        const double h = wrapped(p, left + 56, y, width - 56 - 60, text(c.name), font(10));
        p.setFont(font(9));
        p.setPen(slate);
        p.drawText(QRectF(left + width - 60, y, 60, 16), Qt::AlignRight,
                   c.number.empty() ? QString() : "No. " + text(c.number));
        y += std::max(16.0, h + 2);
    }
    return y - top;
}

} // namespace

void paintReportPage(QPainter& p, const QRectF& area, const ReportPage& page, int pageNumber,
                     int pageCount) {
    const double left = area.left();
    const double width = area.width();
    double y = area.top();

    // The maker's band.
    p.fillRect(QRectF(left, y, width, 44), ink);
    p.setPen(Qt::white);
    p.setFont(font(20, true));
    p.drawText(QRectF(left + 14, y, width / 2, 44), Qt::AlignVCenter | Qt::AlignLeft,
               text(page.maker));
    p.setFont(font(11));
    p.drawText(QRectF(left + width / 2, y, width / 2 - 14, 44), Qt::AlignVCenter | Qt::AlignRight,
               text(page.title));
    y += 44 + 22;

    y += wrapped(p, left, y, width, text(page.label), font(18, true)) + 2;
    y += wrapped(p, left, y, width, "Examined " + text(page.date), font(10), slate) + gap;

    y += heading(p, left, y, width, "Readings");
    y += readings(p, left, y, width, page) + gap;

    if (!page.candidates.empty()) {
        y += heading(p, left, y, width, "Candidates, best fit first");
        y += candidates(p, left, y, width, page) + gap;
    }

    y += heading(p, left, y, width, "Conclusion");
    y += wrapped(p, left, y, width, text(page.conclusion), font(13, true)) + gap;

    if (!page.notes.empty()) {
        y += heading(p, left, y, width, "Notes");
        wrapped(p, left, y, width, text(page.notes), font(10));
    }

    p.setPen(QPen(rule, 0.8));
    p.drawLine(QPointF(left, area.bottom() - 18), QPointF(area.right(), area.bottom() - 18));
    p.setFont(font(8));
    p.setPen(slate);
    p.drawText(QRectF(left, area.bottom() - 14, width, 14), Qt::AlignLeft,
               text(page.maker) + " refractometer · " + text(page.label));
    p.drawText(QRectF(left, area.bottom() - 14, width, 14), Qt::AlignRight,
               QString("Page %1 of %2").arg(pageNumber).arg(pageCount));
}

bool paintReport(QPagedPaintDevice& device, std::span<const ReportPage> pages) {
    QPainter painter;
    if (!painter.begin(&device)) {
        return false;
    }
    // One unit a point, whatever the device's resolution.
    const double scale = device.logicalDpiX() / 72.0;
    painter.scale(scale, scale);
    const QRectF area(QPointF(0, 0), device.pageLayout().paintRect(QPageLayout::Point).size());
    for (std::size_t i = 0; i < pages.size(); ++i) {
        if (i > 0) {
            device.newPage();
        }
        paintReportPage(painter, area, pages[i], static_cast<int>(i + 1),
                        static_cast<int>(pages.size()));
    }
    return painter.end();
}

} // namespace velmora::qt
