#pragma once

// The window's named elements as plain models: each holds exactly the properties the window's
// behaviour reads and writes, and tells one observer (the platform binding, which repaints its
// widget) which property changed. Setting a property to the value it already has tells nobody.

#include <functional>
#include <utility>

namespace velmora {

enum class Property {
    Hidden,
    BackgroundColor,
    BorderWidth,
    BorderColor,
    CornerRadius,
    Enabled,
    Tag,
    State,
    AttributedTitle,
    Text,
    Editable,
    Items,
    SelectedItem,
    Rows,
    SelectedRow,
    Constant,
    Title,
    TextColor,
    Content,
};

class ViewElement {
public:
    using Observer = std::function<void(Property)>;

    ViewElement() = default;
    ViewElement(const ViewElement&) = delete;
    ViewElement& operator=(const ViewElement&) = delete;
    virtual ~ViewElement() = default;

    void setObserver(Observer observer) { observer_ = std::move(observer); }

protected:
    template <class T> void update(T& field, T value, Property property) {
        if (field == value) {
            return;
        }
        field = std::move(value);
        changed(property);
    }

    void changed(Property property) {
        if (observer_) {
            observer_(property);
        }
    }

private:
    Observer observer_;
};

} // namespace velmora
