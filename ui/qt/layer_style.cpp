#include "ui/qt/layer_style.h"

#include <QStringList>

namespace velmora::qt {
namespace {

QString css(const Rgba& color) {
    return toQColor(color).name(QColor::HexArgb);
}

} // namespace

QColor toQColor(const Rgba& color) {
    return QColor::fromRgbF(static_cast<float>(color.red), static_cast<float>(color.green),
                            static_cast<float>(color.blue), static_cast<float>(color.alpha));
}

QString layerStyleSheet(const QString& objectName, const View& view) {
    QStringList declarations;
    if (const auto& background = view.backgroundColor()) {
        declarations << "background-color: " + css(*background);
    }
    if (view.borderWidth() > 0) {
        declarations << QString("border: %1px solid %2")
                            .arg(view.borderWidth())
                            .arg(css(view.borderColor().value_or(Rgba::gray(0))));
    }
    if (view.cornerRadius() > 0) {
        declarations << QString("border-radius: %1px").arg(view.cornerRadius());
    }
    if (declarations.isEmpty()) {
        return {};
    }
    return "#" + objectName + " { " + declarations.join("; ") + " }";
}

} // namespace velmora::qt
