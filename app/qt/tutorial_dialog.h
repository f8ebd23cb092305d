#pragma once

// The tutorial screen on the desktop: the tutorial document in a PDF viewer that fills the
// screen, page after page, as wide as the screen. The viewer comes from its module (see
// pdf_viewer_module.h); without the module the screen stays empty.

#include "app/pdf_view_controller.h"

#include <QDialog>

namespace velmora::qt {

class TutorialDialog final : public QDialog, private DocumentViewer {
public:
    explicit TutorialDialog(const Bundle& bundle, QWidget* parent = nullptr);

private:
    void showDocument(const std::filesystem::path& file) override;

    QWidget* viewer_ = nullptr;
    PDFViewController controller_;
};

} // namespace velmora::qt
