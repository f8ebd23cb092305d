#pragma once

// Lays report pages out on any paint device: the PDF writer, a printer, an image.

#include "records/report_layout.h"

#include <span>

class QPagedPaintDevice;
class QPainter;
class QRectF;

namespace velmora::qt {

// Paints the page into area (in the painter's units).
void paintReportPage(QPainter& painter, const QRectF& area, const ReportPage& page, int pageNumber,
                     int pageCount);

// One page a record, each after a new page of the device. False when the device cannot be
// painted on.
bool paintReport(QPagedPaintDevice& device, std::span<const ReportPage> pages);

} // namespace velmora::qt
