#pragma once

// A text field the user types into (or a read-only one that shows a value). Each change the user
// makes is checked by the field's delegate; leaving the field (Tab, a click elsewhere) or
// pressing Return ends the editing, which the delegate checks too. Text the program sets is
// checked by nobody.
//
// The window taking or losing the keyboard as a whole (another window or an alert comes up, a
// menu opens) is not leaving the field: the editing goes on where it was.

#include "ui/main_window.h"
#include "ui/qt/view_binding.h"

#include <QLineEdit>

namespace velmora::qt {

class EntryBinding final : public WidgetBinding<TextField, QLineEdit> {
public:
    EntryBinding(TextField& field, QLineEdit* widget, MainWindow& window);

protected:
    void apply(Property property) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void typed(const QString& text);

    MainWindow& window_;
};

} // namespace velmora::qt
