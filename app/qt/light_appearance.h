#pragma once

// The application always looks light, whatever the desktop's theme: the window's colours are
// designed for a light background.

class QApplication;

namespace velmora::qt {

void useLightAppearance(QApplication& application);

} // namespace velmora::qt
