#include "ui/qt/element_binding.h"

namespace velmora::qt {

ElementBinding::ElementBinding(ViewElement& element) : observed_(element) {
    observed_.setObserver([this](Property property) { apply(property); });
}

ElementBinding::~ElementBinding() {
    observed_.setObserver({});
}

void ElementBinding::refresh() {
    // Title is the last of the properties.
    for (int property = 0; property <= static_cast<int>(Property::Title); ++property) {
        apply(static_cast<Property>(property));
    }
}

} // namespace velmora::qt
