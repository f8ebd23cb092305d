#pragma once

// Keeps one widget in step with one element of the window's logic: every property the element
// reports changed is applied to the widget, and the user's gestures on the widget become the
// element's gestures. The binding is the element's one observer while it lives; its connections
// to the widget end with it.

#include "ui/view_element.h"

#include <QObject>

namespace velmora::qt {

class ElementBinding : public QObject {
public:
    explicit ElementBinding(ViewElement& element);
    ~ElementBinding() override;
    ElementBinding(const ElementBinding&) = delete;
    ElementBinding& operator=(const ElementBinding&) = delete;

    // Applies every property, as when the widget first meets its element.
    void refresh();

protected:
    virtual void apply(Property property) = 0;

private:
    ViewElement& observed_;
};

} // namespace velmora::qt
