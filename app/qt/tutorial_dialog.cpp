#include "app/qt/tutorial_dialog.h"

#include "app/qt/module_loader.h"
#include "app/qt/pdf_viewer_module.h"

#include <QDebug>
#include <QVBoxLayout>

namespace velmora::qt {
namespace {

struct PdfViewer {
    pdf_viewer_module::CreateViewer create = nullptr;
    pdf_viewer_module::ShowDocument show = nullptr;
};

// Loaded on the first opening and kept.
const PdfViewer& pdfViewer() {
    static const PdfViewer viewer = [] {
        QString error;
        PdfViewer loaded{moduleFunction<pdf_viewer_module::CreateViewer>(
                             pdf_viewer_module::name, pdf_viewer_module::createViewer, error),
                         moduleFunction<pdf_viewer_module::ShowDocument>(
                             pdf_viewer_module::name, pdf_viewer_module::showDocument, error)};
        if (!loaded.create || !loaded.show) {
            qWarning().noquote() << "The tutorial cannot be shown:" << error;
            return PdfViewer{};
        }
        return loaded;
    }();
    return viewer;
}

} // namespace

TutorialDialog::TutorialDialog(const Bundle& bundle, QWidget* parent)
    : QDialog(parent), controller_(*this, bundle) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    viewer_ = pdfViewer().create ? pdfViewer().create(this) : new QWidget(this);
    layout->addWidget(viewer_);
    resize(860, 760);
    controller_.viewDidLoad();
    setWindowTitle(QString::fromStdString(controller_.title()));
}

void TutorialDialog::showDocument(const std::filesystem::path& file) {
    if (pdfViewer().show) {
        pdfViewer().show(viewer_, QString::fromStdU16String(file.u16string()));
    }
}

} // namespace velmora::qt
