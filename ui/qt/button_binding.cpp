#include "ui/qt/button_binding.h"

#include "ui/qt/window_style.h"

#include <QCheckBox>

namespace velmora::qt {
namespace {

Qt::CheckState checkState(ButtonState state) {
    switch (state) {
    case ButtonState::On:
        return Qt::Checked;
    case ButtonState::Mixed:
        return Qt::PartiallyChecked;
    case ButtonState::Off:
        break;
    }
    return Qt::Unchecked;
}

} // namespace

ButtonBinding::ButtonBinding(Button& button, QAbstractButton* widget)
    : WidgetBinding(button, widget) {
    // A click must not take the keyboard from an entry: that would end its editing, and the
    // entry's check would come before the click's own action. Tab still reaches the button.
    widget->setFocusPolicy(Qt::TabFocus);
    connect(widget, &QAbstractButton::clicked, this, [this] {
        element_.performClick();
        // The element may have kept its state (a disabled one ignores the click): show its own.
        apply(Property::State);
    });
}

void ButtonBinding::apply(Property property) {
    if (!widget_) {
        return;
    }
    switch (property) {
    case Property::State:
        if (auto* checkBox = qobject_cast<QCheckBox*>(widget_)) {
            checkBox->setCheckState(checkState(element_.state()));
        }
        break;
    case Property::AttributedTitle: {
        const AttributedTitle& title = element_.attributedTitle();
        if (title.text.empty()) {
            break; // the interface file's title stands
        }
        widget_->setText(QString::fromStdString(title.text));
        // Through the palette, so a disabled box still greys its title out.
        QPalette palette = widget_->palette();
        for (const auto group : {QPalette::Active, QPalette::Inactive}) {
            palette.setColor(group, QPalette::WindowText, toQColor(title.foregroundColor));
            palette.setColor(group, QPalette::ButtonText, toQColor(title.foregroundColor));
        }
        widget_->setPalette(palette);
        break;
    }
    default:
        ViewBinding::apply(property);
    }
}

} // namespace velmora::qt
