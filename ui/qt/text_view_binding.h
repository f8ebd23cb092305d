#pragma once

// A multi-line text the program writes and the user reads, scrolls and copies from.

#include "ui/qt/view_binding.h"
#include "ui/text_view.h"

#include <QPlainTextEdit>

namespace velmora::qt {

class TextViewBinding final : public WidgetBinding<TextView, QPlainTextEdit> {
public:
    TextViewBinding(TextView& view, QPlainTextEdit* widget);

protected:
    void apply(Property property) override;
};

} // namespace velmora::qt
