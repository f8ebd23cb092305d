#include "ui/pop_up_button.h"

#include <algorithm>

namespace velmora {

bool PopUpButton::append(std::string title) {
    if (!present_.insert(title).second) {
        return false;
    }
    titles_.push_back(std::move(title));
    return true;
}

void PopUpButton::addItem(std::string title) {
    addItems({std::move(title)});
}

void PopUpButton::addItems(const std::vector<std::string>& titles) {
    titles_.reserve(titles_.size() + titles.size());
    present_.reserve(present_.size() + titles.size());
    bool added = false;
    for (const auto& title : titles) {
        added = append(title) || added;
    }
    if (!added) {
        return;
    }
    changed(Property::Items);
    if (selected_ == noSelection) {
        selectItem(0);
    }
}

void PopUpButton::removeAllItems() {
    if (titles_.empty()) {
        return;
    }
    titles_.clear();
    present_.clear();
    changed(Property::Items);
    selectItem(noSelection);
}

void PopUpButton::selectItem(int index) {
    update(selected_, index >= 0 && index < numberOfItems() ? index : noSelection,
           Property::SelectedItem);
}

std::string PopUpButton::titleOfSelectedItem() const {
    return selected_ == noSelection ? std::string() : titles_[static_cast<std::size_t>(selected_)];
}

int PopUpButton::indexOfItem(std::string_view title) const {
    const auto it = std::find(titles_.begin(), titles_.end(), title);
    return it == titles_.end() ? noSelection : static_cast<int>(it - titles_.begin());
}

void PopUpButton::pickItem(int index) {
    if (!isEnabled() || index < 0 || index >= numberOfItems()) {
        return;
    }
    selectItem(index);
    if (action_) {
        action_(*this);
    }
}

} // namespace velmora
