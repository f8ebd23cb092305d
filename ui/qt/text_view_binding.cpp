#include "ui/qt/text_view_binding.h"

namespace velmora::qt {

TextViewBinding::TextViewBinding(TextView& view, QPlainTextEdit* widget)
    : ViewBinding(view, widget), view_(view), widget_(widget) {
    widget->setReadOnly(true);
}

void TextViewBinding::apply(Property property) {
    if (widget_ && property == Property::Text) {
        widget_->setPlainText(QString::fromStdString(view_.text()));
    } else {
        ViewBinding::apply(property);
    }
}

} // namespace velmora::qt
