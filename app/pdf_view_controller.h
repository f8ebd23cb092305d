#pragma once

// The tutorial screen: the tutorial document that ships with the application, in a viewer. With
// no document the viewer stays empty; nothing is reported.

#include "app/document_viewer.h"
#include "foundation/bundle.h"

#include <string>

namespace velmora {

class PDFViewController {
public:
    static constexpr const char* screenTitle = "Tutorial.pdf";

    explicit PDFViewController(DocumentViewer& viewer, const Bundle& bundle = Bundle::main());

    void viewDidLoad();

    const std::string& title() const { return title_; }

private:
    DocumentViewer& viewer_;
    const Bundle& bundle_;
    std::string title_;
};

} // namespace velmora
