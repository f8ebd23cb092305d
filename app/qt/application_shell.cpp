#include "app/qt/application_shell.h"

#include <QAction>
#include <QApplication>

namespace velmora::qt {

ApplicationShell::ApplicationShell(ViewControllerEnvironment environment, AppDelegate& delegate)
    : window_(elements_), controller_(elements_, std::move(environment)), delegate_(delegate) {
    controller_.viewDidLoad();
    QObject::connect(window_.saveAction(), &QAction::triggered, &window_,
                     [this] { delegate_.saveAction(); });
    QObject::connect(window_.quitAction(), &QAction::triggered, &window_,
                     [this] { requestQuit(); });
    // The delegate alone decides when the application ends.
    QApplication::setQuitOnLastWindowClosed(false);
    window_.setCloseRequestHandler([this] { return windowMayClose(); });
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, &window_,
                     [this] { delegate_.applicationWillTerminate(); });
}

bool ApplicationShell::requestQuit() {
    if (delegate_.applicationShouldTerminate() == TerminateReply::Cancel) {
        return false;
    }
    QCoreApplication::quit();
    return true;
}

bool ApplicationShell::windowMayClose() {
#ifdef Q_OS_MACOS
    return true;
#else
    return requestQuit();
#endif
}

} // namespace velmora::qt
