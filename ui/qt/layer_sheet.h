#pragma once

// The layers' looks of every element in one window, gathered into the window's own style sheet
// until the window is first polished. A style sheet set on a widget makes a style of its own for
// it and everything it holds; set on a dozen widgets as the window is bound, that was most of the
// time to the first frame. One sheet, set once, costs one.
//
// After the first polish a change goes to the widget's own sheet, which wins over the window's
// rule for it; only a look that is taken away restyles the window.

#include <QObject>
#include <QString>
#include <map>

class QWidget;

namespace velmora::qt {

class LayerSheet final : public QObject {
public:
    // The window's own sheet comes first; the layers' rules follow it.
    LayerSheet(QWidget& window, QString windowSheet);

    // The window's layer sheet, or nothing when it has none.
    static LayerSheet* of(const QWidget& widget);

    // Gives the widget this rule ("#name { ... }"), or none when empty.
    void setRule(QWidget& widget, const QString& rule);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void applyToWindow();

    QWidget& window_;
    QString windowSheet_;
    std::map<QString, QString> rules_; // by object name: what the window's sheet holds
    bool gathering_ = true;
};

} // namespace velmora::qt
