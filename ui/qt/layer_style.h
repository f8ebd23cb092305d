#pragma once

// A view's backing layer (background, border, corner radius) as a style sheet that applies to
// its widget alone, so the look the window's logic sets is not passed on to the children. What
// the layer leaves unset is left to the interface file's style sheet.

#include "foundation/rgba.h"
#include "ui/view.h"

#include <QColor>
#include <QString>

namespace velmora::qt {

QColor toQColor(const Rgba& color);

QString layerStyleSheet(const QString& objectName, const View& view);

} // namespace velmora::qt
