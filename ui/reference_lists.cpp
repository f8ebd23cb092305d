#include "data/reference_loader.h"
#include "ui/view_controller.h"

namespace velmora {

void ViewController::loadStones() {
    // A file that cannot be read leaves the lists empty and says why on standard output; the
    // window goes on, and every search finds nothing.
    const ReferenceLoad load = loadReferenceSet(
        environment_.referenceFile, environment_.standardOutput, arr_stones, arr_stonesGlobal);
    btn_stonesList.removeAllItems();
    if (!load.holdsNoStone.empty()) {
        // Once the window is up, so the user sees what the alert is about.
        environment_.runLoop.post([this, message = load.holdsNoStone] {
            showAlert(message, "Every search will find nothing.", AlertStyle::Warning);
        });
    }
}

} // namespace velmora
