#include "foundation/text.h"
#include "ui/system_colors.h"
#include "ui/view_controller.h"

namespace velmora {

void ViewController::loadColors() {
    const auto& catalogue = colorCatalogue();
    arr_color.assign(catalogue.begin(), catalogue.end());
    for (const Color& entry : arr_color) {
        btn_color.addItem(entry.name);
    }
    view_color.setBackgroundColor(arr_color.front().color);
    selectedColor = arr_color.front().name;
}

void ViewController::btn_onChangeColor_tap(PopUpButton& sender) {
    // An entry being edited is checked before the colour changes; its answer does not matter.
    window_.makeFirstResponder(nullptr);
    const std::string title = sender.titleOfSelectedItem();
    for (const Color& entry : arr_color) {
        if (text::equals(entry.name, title)) {
            view_color.setBackgroundColor(entry.color);
            selectedColor = entry.name;
            return;
        }
    }
    view_color.setBackgroundColor(std::nullopt);
    selectedColor.clear();
}

void ViewController::clearSwatch() {
    view_color.setBackgroundColor(systemColors::clear);
}

} // namespace velmora
