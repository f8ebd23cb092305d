#include "ui/qt/layer_sheet.h"

#include <QEvent>
#include <QWidget>
#include <utility>

namespace velmora::qt {

LayerSheet::LayerSheet(QWidget& window, QString windowSheet)
    : QObject(&window), window_(window), windowSheet_(std::move(windowSheet)) {
    setObjectName("velmora_layerSheet");
    window.installEventFilter(this);
}

LayerSheet* LayerSheet::of(const QWidget& widget) {
    return widget.window()->findChild<LayerSheet*>("velmora_layerSheet",
                                                   Qt::FindDirectChildrenOnly);
}

void LayerSheet::setRule(QWidget& widget, const QString& rule) {
    const QString name = widget.objectName();
    if (gathering_) {
        if (rule.isEmpty()) {
            rules_.erase(name);
        } else {
            rules_[name] = rule;
        }
        return;
    }
    const auto inWindow = rules_.find(name);
    if (rule.isEmpty() && inWindow != rules_.end()) {
        rules_.erase(inWindow);
        widget.setStyleSheet({});
        applyToWindow();
        return;
    }
    const QString own = inWindow != rules_.end() && inWindow->second == rule ? QString() : rule;
    if (own != widget.styleSheet()) {
        widget.setStyleSheet(own);
    }
}

bool LayerSheet::eventFilter(QObject* watched, QEvent* event) {
    // Sent to the window before it and its children take their styles.
    if (watched == &window_ && event->type() == QEvent::Polish && gathering_) {
        gathering_ = false;
        window_.removeEventFilter(this);
        applyToWindow();
    }
    return false;
}

void LayerSheet::applyToWindow() {
    QString sheet = windowSheet_;
    for (const auto& [name, rule] : rules_) {
        sheet += '\n' + rule;
    }
    window_.setStyleSheet(sheet);
}

} // namespace velmora::qt
