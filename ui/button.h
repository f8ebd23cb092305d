#pragma once

// A push button or a check box.

#include "foundation/rgba.h"
#include "ui/control.h"

#include <functional>
#include <string>

namespace velmora {

// The values a desktop check box reports.
enum class ButtonState { Mixed = -1, Off = 0, On = 1 };

enum class ButtonType { Push, CheckBox };

enum class TextAlignment { Natural, Left, Center, Right };

struct AttributedTitle {
    std::string text;
    TextAlignment alignment = TextAlignment::Natural;
    Rgba foregroundColor;

    bool operator==(const AttributedTitle&) const = default;
};

class Button : public Control {
public:
    using Action = std::function<void(Button& sender)>;

    explicit Button(ButtonType type = ButtonType::Push) : type_(type) {}

    ButtonState state() const { return state_; }
    void setState(ButtonState state) { update(state_, state, Property::State); }

    const AttributedTitle& attributedTitle() const { return attributedTitle_; }
    void setAttributedTitle(AttributedTitle title) {
        update(attributedTitle_, std::move(title), Property::AttributedTitle);
    }

    void setAction(Action action) { action_ = std::move(action); }

    // The key that clicks the button when no entry has the keyboard (" ": Space).
    const std::string& keyEquivalent() const { return keyEquivalent_; }
    void setKeyEquivalent(std::string key) { keyEquivalent_ = std::move(key); }

    // A click, by the user or by the program: a disabled button ignores it; a check box turns
    // on (from off or mixed) or off before the action runs.
    void performClick();

private:
    ButtonState state_ = ButtonState::Off;
    AttributedTitle attributedTitle_;
    Action action_;
    std::string keyEquivalent_;
    ButtonType type_;
};

} // namespace velmora
