#include "app/qt/light_appearance.h"

#include "ui/qt/window_style.h"

#include <QApplication>
#include <QStyle>

namespace velmora::qt {

void useLightAppearance(QApplication& application) {
    // Fusion, under the main window's own look, looks the same on every desktop, and its own
    // palette is the light one; a dark desktop theme's palette would otherwise come through.
    QApplication::setStyle(new WindowStyle);
    application.setPalette(QApplication::style()->standardPalette());
}

} // namespace velmora::qt
