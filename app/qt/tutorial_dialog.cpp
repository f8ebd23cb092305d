#include "app/qt/tutorial_dialog.h"

#include <QPdfDocument>
#include <QPdfView>
#include <QVBoxLayout>

namespace velmora::qt {

TutorialDialog::TutorialDialog(const Bundle& bundle, QWidget* parent)
    : QDialog(parent), viewer_(new QPdfView(this)), document_(new QPdfDocument(this)),
      controller_(*this, bundle) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(viewer_);
    viewer_->setPageMode(QPdfView::PageMode::MultiPage);
    viewer_->setZoomMode(QPdfView::ZoomMode::FitToWidth);
    viewer_->setPageSpacing(12);
    viewer_->setDocumentMargins(QMargins(16, 16, 16, 16));
    viewer_->setStyleSheet("QPdfView { background: #e9ebef; border: none; }");
    resize(860, 760);
    controller_.viewDidLoad();
    setWindowTitle(QString::fromStdString(controller_.title()));
}

void TutorialDialog::showDocument(const std::filesystem::path& file) {
    if (document_->load(QString::fromStdU16String(file.u16string())) == QPdfDocument::Error::None) {
        viewer_->setDocument(document_);
    }
}

} // namespace velmora::qt
