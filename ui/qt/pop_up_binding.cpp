#include "ui/qt/pop_up_binding.h"

#include <QSignalBlocker>
#include <QStringList>

namespace velmora::qt {

PopUpBinding::PopUpBinding(PopUpButton& popUp, QComboBox* widget) : WidgetBinding(popUp, widget) {
    // As a button: a click leaves the keyboard with the entry being edited.
    widget->setFocusPolicy(Qt::TabFocus);
    // activated, unlike currentIndexChanged, comes from the user only.
    connect(widget, &QComboBox::activated, this, [this](int index) {
        element_.pickItem(index);
        showSelection(); // a disabled element ignores the pick
    });
}

void PopUpBinding::showSelection() {
    const QSignalBlocker quiet(widget_);
    widget_->setCurrentIndex(element_.indexOfSelectedItem());
}

void PopUpBinding::apply(Property property) {
    if (!widget_) {
        return;
    }
    switch (property) {
    case Property::Items: {
        QStringList titles;
        titles.reserve(element_.numberOfItems());
        for (const std::string& title : element_.itemTitles()) {
            titles << QString::fromStdString(title);
        }
        const QSignalBlocker quiet(widget_);
        widget_->clear();
        widget_->addItems(titles);
        showSelection();
        break;
    }
    case Property::SelectedItem:
        showSelection();
        break;
    default:
        ViewBinding::apply(property);
    }
}

} // namespace velmora::qt
