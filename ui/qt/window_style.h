#pragma once

// How the main window looks, drawn by a style rather than a style sheet: a style sheet gives every
// widget of the window a style of its own, and that was a third of the window's start-up.
//
// Fusion draws what this style leaves alone. It draws, for the widgets of a window marked with
// markWindow() and of the dialogs it opens: buttons (plain, "primary", "destructive" and the bar's
// text buttons), entries, text boxes, tables and their headers, and each view's layer (background,
// border, corners) from the layer properties its binding sets. Fonts and colours that are not drawn
// are given to the widgets once, by dress().

#include "foundation/rgba.h"

#include <QColor>
#include <QProxyStyle>

namespace velmora::qt {

QColor toQColor(const Rgba& color);

// What a view's layer asks for; held on its widget, which the style draws from.
struct Layer {
    QColor background; // invalid: none
    int borderWidth = 0;
    QColor borderColor; // invalid: none
    int cornerRadius = 0;

    static Layer of(const QWidget& widget);
    void setOn(QWidget& widget) const;
};

class WindowStyle final : public QProxyStyle {
public:
    WindowStyle();

    // The window's widgets are drawn by this style.
    static void markWindow(QWidget& window);
    // The fonts, colours and margins of the widgets under root (a window or a page made later).
    static void dress(QWidget& root);

    void polish(QWidget* widget) override;
    using QProxyStyle::polish;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
};

} // namespace velmora::qt
