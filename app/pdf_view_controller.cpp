#include "app/pdf_view_controller.h"

namespace velmora {

PDFViewController::PDFViewController(DocumentViewer& viewer, const Bundle& bundle)
    : viewer_(viewer), bundle_(bundle) {}

void PDFViewController::viewDidLoad() {
    title_ = screenTitle;
    if (const auto document = bundle_.pathForResource("Tutorial", "pdf")) {
        viewer_.showDocument(*document);
    }
}

} // namespace velmora
