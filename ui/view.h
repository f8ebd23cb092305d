#pragma once

// A plain view: shown or hidden, and the backing layer that paints it.

#include "foundation/rgba.h"
#include "ui/view_element.h"

#include <optional>

namespace velmora {

class View : public ViewElement {
public:
    bool isHidden() const { return hidden_; }
    void setHidden(bool hidden) { update(hidden_, hidden, Property::Hidden); }

    // Nothing means no colour at all (what lies behind shows), which is not the clear colour.
    const std::optional<Rgba>& backgroundColor() const { return backgroundColor_; }
    void setBackgroundColor(std::optional<Rgba> color) {
        update(backgroundColor_, color, Property::BackgroundColor);
    }

    double borderWidth() const { return borderWidth_; }
    void setBorderWidth(double width) { update(borderWidth_, width, Property::BorderWidth); }

    const std::optional<Rgba>& borderColor() const { return borderColor_; }
    void setBorderColor(std::optional<Rgba> color) {
        update(borderColor_, color, Property::BorderColor);
    }

    double cornerRadius() const { return cornerRadius_; }
    void setCornerRadius(double radius) { update(cornerRadius_, radius, Property::CornerRadius); }

private:
    bool hidden_ = false;
    std::optional<Rgba> backgroundColor_;
    double borderWidth_ = 0;
    std::optional<Rgba> borderColor_;
    double cornerRadius_ = 0;
};

} // namespace velmora
