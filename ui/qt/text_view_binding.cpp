#include "ui/qt/text_view_binding.h"

namespace velmora::qt {

TextViewBinding::TextViewBinding(TextView& view, QPlainTextEdit* widget)
    : WidgetBinding(view, widget) {
    widget->setReadOnly(true);
}

void TextViewBinding::apply(Property property) {
    if (widget_ && property == Property::Text) {
        widget_->setPlainText(QString::fromStdString(element_.text()));
    } else {
        ViewBinding::apply(property);
    }
}

} // namespace velmora::qt
