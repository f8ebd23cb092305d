#pragma once

// A view of several pages on tabs, one shown at a time.

#include "ui/view.h"

namespace velmora {

class TabView : public View {
public:
    int indexOfSelectedItem() const { return selected_; }
    void selectTabViewItemAtIndex(int index) { update(selected_, index, Property::SelectedItem); }
    // The user picked a tab: the widget shows it already.
    void userSelected(int index) { selected_ = index; }

private:
    int selected_ = 0;
};

} // namespace velmora
