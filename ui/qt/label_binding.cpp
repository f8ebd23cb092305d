#include "ui/qt/label_binding.h"

namespace velmora::qt {

LabelBinding::LabelBinding(TextField& field, QLabel* widget) : WidgetBinding(field, widget) {
    // A stone's text is never markup.
    widget->setTextFormat(Qt::PlainText);
}

void LabelBinding::apply(Property property) {
    if (widget_ && property == Property::Text) {
        widget_->setText(QString::fromStdString(element_.text()));
    } else {
        ViewBinding::apply(property);
    }
}

} // namespace velmora::qt
