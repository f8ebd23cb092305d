#pragma once

// Qt 6.4's PDF viewer leaves its page renderer's thread and its scroller's data behind when it
// goes: Qt's leaks, not ours, which would fail every program that opens the tutorial under
// LeakSanitizer (the asan build). Under load the renderer's thread sometimes leaves its object
// behind with a stack that ends inside QtCore (Qt is built without frame pointers, so nothing
// above it is seen): hence the library-wide entry. Include this in the file that holds a
// program's main(), once.

extern "C" const char* __lsan_default_suppressions() {
    return "leak:QScroller::grabGesture\n"
           "leak:QPdfPageRenderer::setRenderMode\n"
           "leak:QThread::exec\n"
           "leak:libQt6Core.so\n";
}
