#pragma once

// A viewer that shows one document, scrollable, filling its screen.

#include <filesystem>

namespace velmora {

class DocumentViewer {
public:
    virtual ~DocumentViewer() = default;
    // A file that is not a readable document leaves the viewer empty.
    virtual void showDocument(const std::filesystem::path& file) = 0;
};

} // namespace velmora
