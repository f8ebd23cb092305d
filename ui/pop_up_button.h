#pragma once

// A pop-up button: a list of titled items, at most one of them selected.
//
// Its titles are unique, as a desktop pop-up's are: adding a title that is already present adds
// nothing, so the first item of a title stays where it was. When listed stones share a name the
// pop-up therefore holds fewer items than the list has entries.

#include "ui/control.h"

#include <functional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace velmora {

class PopUpButton : public Control {
public:
    using Action = std::function<void(PopUpButton& sender)>;

    static constexpr int noSelection = -1;

    const std::vector<std::string>& itemTitles() const { return titles_; }
    int numberOfItems() const { return static_cast<int>(titles_.size()); }

    // Adding to a pop-up with nothing selected selects its first item.
    void addItem(std::string title);
    void addItems(const std::vector<std::string>& titles);
    void removeAllItems();

    int indexOfSelectedItem() const { return selected_; }
    // An index that names no item leaves nothing selected.
    void selectItem(int index);
    // The selected item's title; the empty text when nothing is selected.
    std::string titleOfSelectedItem() const;
    // The index of the item with exactly this title, or noSelection.
    int indexOfItem(std::string_view title) const;

    void setAction(Action action) { action_ = std::move(action); }
    // The user picks an item: it becomes the selection and the action runs. A disabled pop-up,
    // or an index that names no item, ignores the pick.
    void pickItem(int index);

private:
    bool append(std::string title);

    std::vector<std::string> titles_;
    std::unordered_set<std::string> present_;
    int selected_ = noSelection;
    Action action_;
};

} // namespace velmora
