#pragma once

// A view of several pages on tabs, one shown at a time. Its action runs whenever another page
// comes to the front, whether the user picked its tab or the program chose it.

#include "ui/view.h"

#include <functional>

namespace velmora {

class TabView : public View {
public:
    using Action = std::function<void(TabView& sender)>;

    int indexOfSelectedItem() const { return selected_; }
    void selectTabViewItemAtIndex(int index) {
        if (index != selected_) {
            update(selected_, index, Property::SelectedItem);
            didSelect();
        }
    }
    // The user picked a tab: the widget shows it already.
    void userSelected(int index) {
        if (index != selected_) {
            selected_ = index;
            didSelect();
        }
    }

    void setAction(Action action) { action_ = std::move(action); }

private:
    void didSelect() {
        if (action_) {
            action_(*this);
        }
    }

    int selected_ = 0;
    Action action_;
};

} // namespace velmora
