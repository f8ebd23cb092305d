#include "data/reference_loader.h"
#include "ui/view_controller.h"

namespace velmora {

void ViewController::loadStones() {
    // A file that cannot be read leaves the lists empty and says why on standard output; the
    // window goes on, and every search finds nothing.
    loadReferenceSet(environment_.referenceFile, environment_.standardOutput, arr_stones,
                     arr_stonesGlobal);
    btn_stonesList.removeAllItems();
}

} // namespace velmora
