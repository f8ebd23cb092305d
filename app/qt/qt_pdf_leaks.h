#pragma once

// Qt 6.4's PDF viewer leaves its page renderer's thread and its scroller's data behind when it
// goes: Qt's leaks, not ours, which would fail every program that opens the tutorial under
// LeakSanitizer (the asan build). Include this in the file that holds a program's main(), once.

extern "C" const char* __lsan_default_suppressions() {
    return "leak:QScroller::grabGesture\n"
           "leak:QPdfPageRenderer::setRenderMode\n"
           "leak:QThread::exec\n";
}
