#pragma once

// A layout constraint whose constant the window changes, such as the height of a container.

#include "ui/view_element.h"

namespace velmora {

class LayoutConstraint : public ViewElement {
public:
    double constant() const { return constant_; }
    void setConstant(double constant) { update(constant_, constant, Property::Constant); }

private:
    double constant_ = 0;
};

} // namespace velmora
