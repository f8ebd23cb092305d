// The PDF viewer module: nothing of the application is linked in, only QtPdf.

#include "app/qt/pdf_viewer_module.h"

#include <QPdfDocument>
#include <QPdfView>
#include <type_traits>

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/lsan_interface.h>
#endif

extern "C" Q_DECL_EXPORT QWidget* velmora_createPdfViewer(QWidget* parent) {
#if defined(__SANITIZE_ADDRESS__)
    // Qt 6.4's viewer leaves its page renderer, the renderer's thread and its scroller's data
    // behind when it goes: Qt's leaks, not ours. Qt is built without frame pointers, so the leak
    // checker sees no further up their stacks than the QtCore function that allocated them, and
    // cannot tell them by the viewer's name: what the viewer makes here is kept out of its reports.
    const __lsan::ScopedDisabler qtLeaksItsViewer;
#endif
    auto* viewer = new QPdfView(parent);
    viewer->setPageMode(QPdfView::PageMode::MultiPage);
    viewer->setZoomMode(QPdfView::ZoomMode::FitToWidth);
    viewer->setPageSpacing(12);
    viewer->setDocumentMargins(QMargins(16, 16, 16, 16));
    viewer->setStyleSheet("QPdfView { background: #e9ebef; border: none; }");
    return viewer;
}

extern "C" Q_DECL_EXPORT void velmora_showPdfDocument(QWidget* viewer, const QString& file) {
    auto* view = static_cast<QPdfView*>(viewer);
    // Not the viewer's child: a document that goes with its viewer tells the half-destroyed
    // viewer that it closed. Held by the screen, it goes after the viewer, made before it.
    auto* document = new QPdfDocument(view->parentWidget());
    if (document->load(file) == QPdfDocument::Error::None) {
        view->setDocument(document);
    } else {
        delete document;
    }
}

// The application calls them through these types.
static_assert(std::is_same_v<decltype(&velmora_createPdfViewer),
                             velmora::qt::pdf_viewer_module::CreateViewer>);
static_assert(std::is_same_v<decltype(&velmora_showPdfDocument),
                             velmora::qt::pdf_viewer_module::ShowDocument>);
