#include "app/qt/light_appearance.h"

#include <QApplication>
#include <QStyle>
#include <QStyleFactory>

namespace velmora::qt {

void useLightAppearance(QApplication& application) {
    // Fusion looks the same on every desktop, and its own palette is the light one; a dark
    // desktop theme's palette would otherwise come through.
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    application.setPalette(QApplication::style()->standardPalette());
}

} // namespace velmora::qt
