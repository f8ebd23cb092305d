#pragma once

// The tutorial's PDF viewer, a module of its own (see module_loader.h): QtPdf, its renderer and
// the network and image libraries it needs are loaded when the tutorial first opens.

class QString;
class QWidget;

namespace velmora::qt::pdf_viewer_module {

inline constexpr const char* name = "velmora_pdf_viewer";

// A viewer laid out for reading, page after page as wide as it is, with no document yet.
inline constexpr const char* createViewer = "velmora_createPdfViewer";
using CreateViewer = QWidget* (*)(QWidget* parent);

// Shows the document in the viewer; a file that is not a readable document leaves it empty.
inline constexpr const char* showDocument = "velmora_showPdfDocument";
using ShowDocument = void (*)(QWidget* viewer, const QString& file);

} // namespace velmora::qt::pdf_viewer_module
