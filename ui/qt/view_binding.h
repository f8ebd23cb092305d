#pragma once

// A plain view or a control: shown or hidden, enabled or not, and its layer's look. The widget's
// own style sheet is the layer's: the interface file styles it from an ancestor.

#include "ui/qt/element_binding.h"
#include "ui/view.h"

#include <QPointer>
#include <QWidget>

namespace velmora::qt {

class ViewBinding : public ElementBinding {
public:
    ViewBinding(View& view, QWidget* widget);

protected:
    void apply(Property property) override;

private:
    View& view_;
    QPointer<QWidget> widget_;
};

} // namespace velmora::qt
