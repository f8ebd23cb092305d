#include "app/qt/module_loader.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibrary>

namespace velmora::qt {

QFunctionPointer resolveModuleFunction(const QString& module, const char* function,
                                       QString& error) {
    const QDir executableDir(QCoreApplication::applicationDirPath());
    for (const QString& dir : {executableDir.filePath(VELMORA_MODULE_DIR), executableDir.path()}) {
        QLibrary library(QDir(dir).filePath(module));
        if (!library.load()) {
            error = library.errorString();
            continue;
        }
        if (const QFunctionPointer resolved = library.resolve(function)) {
            return resolved;
        }
        // QLibrary's own message for this is "Unknown error".
        error = QString("%1 has no function %2").arg(library.fileName(), function);
        return nullptr;
    }
    return nullptr;
}

} // namespace velmora::qt
