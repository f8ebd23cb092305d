#pragma once

// A multi-line text view showing one of a stone's descriptive texts.

#include "ui/view.h"

#include <string>

namespace velmora {

class TextView : public View {
public:
    const std::string& text() const { return text_; }
    void setText(std::string text) { update(text_, std::move(text), Property::Text); }

private:
    std::string text_;
};

} // namespace velmora
