#pragma once

// The tutorial screen on the desktop: the tutorial document in a PDF viewer that fills the
// screen, page after page, as wide as the screen.

#include "app/pdf_view_controller.h"

#include <QDialog>

class QPdfDocument;
class QPdfView;

namespace velmora::qt {

class TutorialDialog final : public QDialog, private DocumentViewer {
public:
    explicit TutorialDialog(const Bundle& bundle, QWidget* parent = nullptr);

private:
    void showDocument(const std::filesystem::path& file) override;

    QPdfView* viewer_;
    QPdfDocument* document_;
    PDFViewController controller_;
};

} // namespace velmora::qt
