#include "ui/qt/label_binding.h"

namespace velmora::qt {

LabelBinding::LabelBinding(TextField& field, QLabel* widget)
    : ViewBinding(field, widget), field_(field), widget_(widget) {
    // A stone's text is never markup.
    widget->setTextFormat(Qt::PlainText);
}

void LabelBinding::apply(Property property) {
    if (widget_ && property == Property::Text) {
        widget_->setText(QString::fromStdString(field_.text()));
    } else {
        ViewBinding::apply(property);
    }
}

} // namespace velmora::qt
