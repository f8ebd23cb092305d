#include "ui/qt/entry_binding.h"

#include <QFocusEvent>
#include <QStyle>

namespace velmora::qt {
namespace {

bool isTheUsersMove(Qt::FocusReason reason) {
    return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason &&
           reason != Qt::MenuBarFocusReason;
}

} // namespace

EntryBinding::EntryBinding(TextField& field, QLineEdit* widget, MainWindow& window)
    : WidgetBinding(field, widget), window_(window) {
    // textEdited, unlike textChanged, comes from the user only.
    connect(widget, &QLineEdit::textEdited, this, &EntryBinding::typed);
    connect(widget, &QLineEdit::returnPressed, this, [this] {
        // Return ends the editing; the field keeps the keyboard for the next value.
        window_.makeFirstResponder(nullptr);
        window_.makeFirstResponder(&element_);
    });
    widget->installEventFilter(this);
}

void EntryBinding::typed(const QString& text) {
    element_.setText(text.toStdString());
    if (TextFieldDelegate* delegate = element_.delegate()) {
        delegate->controlTextDidChange(&element_);
    }
}

bool EntryBinding::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
        const auto* focus = static_cast<QFocusEvent*>(event);
        if (!isTheUsersMove(focus->reason())) {
            return false;
        }
        if (focus->gotFocus()) {
            window_.makeFirstResponder(&element_);
        } else if (window_.firstResponder() == &element_) {
            window_.makeFirstResponder(nullptr);
        }
    }
    return false;
}

void EntryBinding::apply(Property property) {
    if (!widget_) {
        return;
    }
    switch (property) {
    case Property::Text:
        // Writing back what was just typed would move the cursor to the end.
        if (const QString text = QString::fromStdString(element_.text()); widget_->text() != text) {
            widget_->setText(text);
            if (widget_->isReadOnly()) {
                widget_->home(false); // a value too long for its field shows its beginning
            }
        }
        break;
    case Property::Editable: {
        widget_->setReadOnly(!element_.isEditable());
        // A value to read, not to type, is written bold.
        QFont font = widget_->font();
        font.setBold(widget_->isReadOnly());
        widget_->setFont(font);
        break;
    }
    default:
        ViewBinding::apply(property);
    }
}

} // namespace velmora::qt
