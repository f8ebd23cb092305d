#pragma once

// The controller's references to its window and to the window's elements, under the elements'
// names. The window owns the elements; these are filled once, when the controller is made for its
// window.

#include "ui/main_window.h"

namespace velmora {

class MainWindowOutlets {
protected:
    explicit MainWindowOutlets(MainWindow& window) : window_(window) {}

    MainWindow& window_;

#define VELMORA_ELEMENT_OUTLET(Type, name, ...) Type& name = window_.name;
#define VELMORA_CONSTRAINT_OUTLET(name, view) LayoutConstraint& name = window_.name;
    VELMORA_MAIN_WINDOW_ELEMENTS(VELMORA_ELEMENT_OUTLET, VELMORA_CONSTRAINT_OUTLET)
#undef VELMORA_ELEMENT_OUTLET
#undef VELMORA_CONSTRAINT_OUTLET
};

} // namespace velmora
