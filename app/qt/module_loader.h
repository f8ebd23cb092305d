#pragma once

// Parts of the application that only some uses need are modules loaded on first use, so that
// start-up neither loads nor relocates their libraries: the tutorial's PDF viewer and the
// container's SQLite store. A module is looked up where it is installed, <executable
// dir>/../lib/velmora (as configured), then beside the executable, where the build puts it.

#include <QFunctionPointer>
#include <QString>

namespace velmora::qt {

// The module's exported function; the module stays loaded. Null, with why in error, when the
// module or the function cannot be found.
QFunctionPointer resolveModuleFunction(const QString& module, const char* function, QString& error);

template <typename Function>
Function moduleFunction(const QString& module, const char* function, QString& error) {
    return reinterpret_cast<Function>(resolveModuleFunction(module, function, error));
}

} // namespace velmora::qt
