#pragma once

// A plain view or a control: shown or hidden, enabled or not, and its layer's look, which the
// window's style draws (window_style.h).

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

// One kind of element on one kind of widget: the view's properties as above, the element's own
// in the derived binding's apply.
template <class Element, class Widget> class WidgetBinding : public ViewBinding {
public:
    WidgetBinding(Element& element, Widget* widget)
        : ViewBinding(element, widget), element_(element), widget_(widget) {}

protected:
    Element& element_;
    QPointer<Widget> widget_;
};

} // namespace velmora::qt
