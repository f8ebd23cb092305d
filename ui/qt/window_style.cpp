#include "ui/qt/window_style.h"

#include <QAbstractButton>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPainterPath>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTableView>
#include <QTextDocument>

namespace velmora::qt {
namespace {

constexpr char windowMark[] = "velmoraWindow";

// The window's colours.
const QColor ink(0x1c, 0x24, 0x35);
const QColor deepInk(0x12, 0x1b, 0x32);
const QColor greyInk(0x5f, 0x68, 0x7d);
const QColor navy(0x1f, 0x3a, 0x7a);
const QColor selection(0x2f, 0x5b, 0xb7);
const QColor line(0xc4, 0xc9, 0xd4);
const QColor faintLine(0xe3, 0xe6, 0xeb);
const QColor tableLine(0xdd, 0xe1, 0xe7);
const QColor disabledFill(0xf4, 0xf5, 0xf7);
const QColor disabledLine(0xda, 0xdd, 0xe3);
const QColor disabledInk(0xa4, 0xaa, 0xb6);
const QColor quietFill(0xf6, 0xf7, 0xf9);

// The marked window's widgets, and those of the dialogs it opens (its alerts, say), which are its
// own too.
bool inWindow(const QWidget* widget) {
    for (const QWidget* w = widget; w; w = w->parentWidget()) {
        if (w->isWindow() && w->property(windowMark).toBool()) {
            return true;
        }
    }
    return false;
}

bool under(const QWidget* widget, const char* name) {
    for (const QWidget* w = widget ? widget->parentWidget() : nullptr; w; w = w->parentWidget()) {
        if (w->objectName() == QLatin1String(name)) {
            return true;
        }
    }
    return false;
}

enum class ButtonKind { Plain, Primary, Destructive, Bar };

ButtonKind kindOf(const QWidget* button) {
    if (under(button, "box")) {
        return ButtonKind::Bar;
    }
    if (button->property("primary").toBool()) {
        return ButtonKind::Primary;
    }
    if (button->property("destructive").toBool()) {
        return ButtonKind::Destructive;
    }
    return ButtonKind::Plain;
}

struct ButtonColours {
    QColor fill;
    QColor border;
    QColor text;
};

ButtonColours coloursOf(ButtonKind kind, QStyle::State state) {
    const bool enabled = state & QStyle::State_Enabled;
    const bool down = state & (QStyle::State_Sunken | QStyle::State_On);
    const bool over = state & QStyle::State_MouseOver;
    switch (kind) {
    case ButtonKind::Bar:
        return {{},
                {},
                down   ? QColor(0x9a, 0xa4, 0xbd)
                : over ? Qt::white
                       : QColor(0xc3, 0xca, 0xdb)};
    case ButtonKind::Primary: {
        const QColor fill = !enabled ? QColor(0xb3, 0xbb, 0xcc)
                            : down   ? QColor(0x17, 0x2c, 0x5e)
                            : over   ? QColor(0x2a, 0x4b, 0x96)
                                     : navy;
        return {fill, fill, enabled ? Qt::white : QColor(0xf1, 0xf3, 0xf7)};
    }
    case ButtonKind::Plain:
    case ButtonKind::Destructive:
        break;
    }
    const QColor fill = !enabled ? disabledFill
                        : down   ? QColor(0xe4, 0xe8, 0xf0)
                        : over   ? QColor(0xf3, 0xf5, 0xf9)
                                 : Qt::white;
    QColor text = enabled ? ink : disabledInk;
    if (kind == ButtonKind::Destructive) {
        text = enabled ? QColor(0xc9, 0x34, 0x2b) : QColor(0xdf, 0xb1, 0xad);
    }
    return {fill, enabled ? line : disabledLine, text};
}

// A box, rounded or not, with its border inside rect. The border is filled as a ring, not
// stroked: stroking a rounded outline was most of the time the window took to draw its boxes.
void drawBox(QPainter& painter, const QRect& rect, const QColor& fill, const QColor& border,
             int radius, int borderWidth = 1) {
    const int width = border.isValid() ? borderWidth : 0;
    const QRect inner = rect.adjusted(width, width, -width, -width);
    if (radius <= 0) {
        if (width > 0) {
            QRegion ring = QRegion(rect).subtracted(inner);
            for (const QRect& part : ring) {
                painter.fillRect(part, border);
            }
        }
        if (fill.isValid()) {
            painter.fillRect(inner, fill);
        }
        return;
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const qreal innerRadius = std::max(radius - width, 0);
    if (width > 0) {
        QPainterPath ring;
        ring.addRoundedRect(QRectF(rect), radius, radius);
        ring.addRoundedRect(QRectF(inner), innerRadius, innerRadius);
        painter.setBrush(border);
        painter.drawPath(ring);
    }
    if (fill.isValid()) {
        painter.setBrush(fill);
        painter.drawRoundedRect(QRectF(inner), innerRadius, innerRadius);
    }
    painter.restore();
}

void setInk(QWidget& widget, const QColor& colour) {
    QPalette palette = widget.palette();
    palette.setColor(QPalette::WindowText, colour);
    palette.setColor(QPalette::Text, colour);
    palette.setColor(QPalette::ButtonText, colour);
    widget.setPalette(palette);
}

void setFont(QWidget& widget, int pixelSize, bool bold) {
    QFont font = widget.font();
    if (pixelSize > 0) {
        font.setPixelSize(pixelSize);
    }
    font.setBold(bold);
    widget.setFont(font);
}

// The looks given to single widgets by their names.
struct NamedLook {
    const char* name;
    int pixelSize; // 0: the window's
    bool bold;
    QColor ink; // invalid: the window's
};

const NamedLook namedLooks[] = {
    {"lbl_brand", 20, true, Qt::white},
    {"lbl_product", 13, false, QColor(0x8d, 0x97, 0xad)},
    {"usb_device_reading", 60, false, deepInk},
    {"lbl_deviceStatus", 0, true, {}},
    {"lbl_steadyState", 0, true, {}},
    {"lbl_seriesValues", 15, false, {}},
    {"lbl_seriesLow", 20, true, deepInk},
    {"lbl_seriesHigh", 20, true, deepInk},
    {"lbl_seriesBirefringence", 20, true, deepInk},
    {"lbl_seriesVerdict", 20, true, navy},
    {"lbl_stonesCount", 16, true, deepInk},
};

// Borders the interface draws around some views, under whatever layer their logic gives them.
struct Outline {
    const char* name;
    QColor colour;
    int radius;
};

const Outline outlines[] = {
    {"view_reading", tableLine, 8},
    {"view_capture", tableLine, 8},
    {"view_color", QColor(0xb8, 0xbe, 0xca), 4},
};

void dressLabel(QLabel& label) {
    const QString role = label.property("role").toString();
    if (role == "heading") {
        setFont(label, 16, true);
        setInk(label, deepInk);
    } else if (role == "subheading") {
        setFont(label, 0, true);
        setInk(label, deepInk);
    } else if (role == "caption") {
        setInk(label, greyInk);
    }
}

} // namespace

QColor toQColor(const Rgba& color) {
    return QColor::fromRgbF(static_cast<float>(color.red), static_cast<float>(color.green),
                            static_cast<float>(color.blue), static_cast<float>(color.alpha));
}

Layer Layer::of(const QWidget& widget) {
    return {widget.property("layerBackground").value<QColor>(),
            widget.property("layerBorderWidth").toInt(),
            widget.property("layerBorderColor").value<QColor>(),
            widget.property("layerCornerRadius").toInt()};
}

void Layer::setOn(QWidget& widget) const {
    widget.setProperty("layerBackground", background);
    widget.setProperty("layerBorderWidth", borderWidth);
    widget.setProperty("layerBorderColor", borderColor);
    widget.setProperty("layerCornerRadius", cornerRadius);
    widget.update();
}

WindowStyle::WindowStyle() : QProxyStyle(QStyleFactory::create("Fusion")) {}

void WindowStyle::markWindow(QWidget& window) {
    window.setProperty(windowMark, true);
    QPalette palette = window.palette();
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Active, role, ink);
        palette.setColor(QPalette::Inactive, role, ink);
    }
    palette.setColor(QPalette::Disabled, QPalette::Text, disabledInk);
    palette.setColor(QPalette::PlaceholderText, QColor(0xa4, 0xaa, 0xb6, 128));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, quietFill);
    palette.setColor(QPalette::Highlight, selection);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    window.setPalette(palette);
}

void WindowStyle::dress(QWidget& root) {
    for (QWidget* widget : root.findChildren<QWidget*>()) {
        if (auto* label = qobject_cast<QLabel*>(widget)) {
            dressLabel(*label);
        } else if (auto* edit = qobject_cast<QLineEdit*>(widget)) {
            // The text sits 9 pixels in from the sides, as in a roomy entry. A read-only value is
            // made bold by its binding, which knows when an entry stops being one.
            edit->setTextMargins(6, 2, 6, 2);
        } else if (auto* text = qobject_cast<QPlainTextEdit*>(widget)) {
            // The frame draws the box, rounded; the page inside is see-through.
            QPalette palette = text->palette();
            palette.setColor(QPalette::Base, Qt::transparent);
            text->setPalette(palette);
            text->viewport()->setAutoFillBackground(false);
            text->document()->setDocumentMargin(8);
        } else if (auto* header = qobject_cast<QHeaderView*>(widget)) {
            setFont(*header, 0, true);
            setInk(*header, QColor(0x4a, 0x53, 0x68));
        } else if (auto* button = qobject_cast<QPushButton*>(widget)) {
            const ButtonKind kind = kindOf(button);
            if (kind == ButtonKind::Bar) {
                setFont(*button, 14, true);
            } else if (kind == ButtonKind::Primary) {
                setFont(*button, 0, true);
            }
        }
        for (const NamedLook& look : namedLooks) {
            if (widget->objectName() == QLatin1String(look.name)) {
                setFont(*widget, look.pixelSize, look.bold);
                if (look.ink.isValid()) {
                    setInk(*widget, look.ink);
                }
            }
        }
        for (const Outline& outline : outlines) {
            if (widget->objectName() == QLatin1String(outline.name)) {
                widget->setProperty("outlineColour", outline.colour);
                widget->setProperty("outlineRadius", outline.radius);
                widget->setAttribute(Qt::WA_StyledBackground);
            }
        }
    }
}

void WindowStyle::polish(QWidget* widget) {
    QProxyStyle::polish(widget);
    if (qobject_cast<QAbstractButton*>(widget)) {
        widget->setAttribute(Qt::WA_Hover);
    }
}

void WindowStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                QPainter* painter, const QWidget* widget) const {
    if (!inWindow(widget)) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    switch (element) {
    case PE_Widget: {
        // A view's layer; buttons and entries draw theirs in their own panel.
        if (qobject_cast<const QAbstractButton*>(widget) ||
            qobject_cast<const QLineEdit*>(widget)) {
            return;
        }
        const Layer layer = Layer::of(*widget);
        const QColor outline = widget->property("outlineColour").value<QColor>();
        const bool bordered = layer.borderWidth > 0 || outline.isValid();
        if (!layer.background.isValid() && !bordered) {
            return;
        }
        const int radius =
            layer.cornerRadius > 0 ? layer.cornerRadius : widget->property("outlineRadius").toInt();
        drawBox(*painter, widget->rect(), layer.background,
                layer.borderWidth > 0 ? layer.borderColor : outline, radius,
                std::max(layer.borderWidth, 1));
        return;
    }
    case PE_PanelLineEdit: {
        const auto* edit = qobject_cast<const QLineEdit*>(widget);
        const bool enabled = option->state & State_Enabled;
        const bool readOnly = edit && edit->isReadOnly();
        const QColor fill = !enabled ? disabledFill : readOnly ? quietFill : QColor(Qt::white);
        const QColor border = !enabled                         ? disabledLine
                              : readOnly                       ? faintLine
                              : option->state & State_HasFocus ? selection
                                                               : line;
        drawBox(*painter, option->rect, fill, border, 5);
        return;
    }
    case PE_FrameLineEdit:
    case PE_FrameFocusRect:
        if (qobject_cast<const QLineEdit*>(widget) ||
            qobject_cast<const QAbstractButton*>(widget)) {
            return;
        }
        break;
    default:
        break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void WindowStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
    if (!inWindow(widget)) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    switch (element) {
    case CE_PushButtonBevel:
        if (qobject_cast<const QPushButton*>(widget)) {
            const ButtonKind kind = kindOf(widget);
            if (kind == ButtonKind::Bar) {
                return;
            }
            ButtonColours colours = coloursOf(kind, option->state);
            const Layer layer = Layer::of(*widget);
            if (layer.borderWidth > 0 && layer.borderColor.isValid()) {
                colours.border = layer.borderColor;
            }
            drawBox(*painter, option->rect, colours.fill, colours.border, 6);
            return;
        }
        break;
    case CE_PushButtonLabel:
        if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
            button && qobject_cast<const QPushButton*>(widget)) {
            QStyleOptionButton label(*button);
            const QColor text = coloursOf(kindOf(widget), option->state).text;
            label.palette.setColor(QPalette::ButtonText, text);
            label.state &= ~(State_Sunken | State_On); // no shift of the title when pressed
            QProxyStyle::drawControl(element, &label, painter, widget);
            return;
        }
        break;
    case CE_ShapedFrame:
        if (qobject_cast<const QPlainTextEdit*>(widget)) {
            drawBox(*painter, option->rect, quietFill, faintLine, 6);
            return;
        }
        if (qobject_cast<const QTableView*>(widget)) {
            drawBox(*painter, option->rect, {}, tableLine, 0);
            return;
        }
        break;
    case CE_HeaderSection:
        painter->fillRect(option->rect, QColor(0xf1, 0xf3, 0xf6));
        painter->fillRect(
            QRect(option->rect.left(), option->rect.bottom(), option->rect.width(), 1), tableLine);
        return;
    case CE_HeaderLabel:
        if (const auto* header = qstyleoption_cast<const QStyleOptionHeader*>(option)) {
            QStyleOptionHeader label(*header);
            label.rect.adjust(8, 0, -8, 0);
            QProxyStyle::drawControl(element, &label, painter, widget);
            return;
        }
        break;
    case CE_Splitter:
        return;
    default:
        break;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

QSize WindowStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                    const QSize& size, const QWidget* widget) const {
    if (inWindow(widget)) {
        switch (type) {
        case CT_PushButton:
            if (kindOf(widget) == ButtonKind::Bar) {
                return {size.width() + 36, std::max(size.height(), 53)};
            }
            return {size.width() + 34, std::max(size.height(), 20) + 14};
        case CT_LineEdit:
            // A roomy entry; the detail's values sit closer.
            return {size.width() + 2,
                    std::max(size.height() + 2, under(widget, "view_detailPanel") ? 24 : 30)};
        case CT_HeaderSection:
            // Five pixels above and below the title, and the line under it.
            return {QProxyStyle::sizeFromContents(type, option, size, widget).width(),
                    option->fontMetrics.height() + 14};
        default:
            break;
        }
    }
    return QProxyStyle::sizeFromContents(type, option, size, widget);
}

int WindowStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                             const QWidget* widget) const {
    if (inWindow(widget) && metric == PM_DefaultFrameWidth &&
        (qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QPlainTextEdit*>(widget) ||
         qobject_cast<const QTableView*>(widget))) {
        return 1;
    }
    return QProxyStyle::pixelMetric(metric, option, widget);
}

} // namespace velmora::qt
