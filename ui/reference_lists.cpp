#include "data/reference_loader.h"
#include "ui/view_controller.h"

#include <sstream>

namespace velmora {

void ViewController::loadStones() {
    // A file that cannot be read, or holds no stone, leaves the lists empty and is told in an
    // alert; the window goes on, and every search finds nothing.
    std::ostringstream why;
    const ReferenceLoad load =
        loadReferenceSet(environment_.referenceFile, why, arr_stones, arr_stonesGlobal);
    btn_stonesList.removeAllItems();
    std::string message = load ? load.holdsNoStone : why.str();
    if (!message.empty() && message.back() == '\n') {
        message.pop_back();
    }
    if (!message.empty()) {
        // Once the window is up, so the user sees what the alert is about.
        environment_.runLoop.post([this, message = std::move(message)] {
            showAlert(message, "Every search will find nothing.", AlertStyle::Warning);
        });
    }
}

} // namespace velmora
