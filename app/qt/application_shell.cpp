#include "app/qt/application_shell.h"

#include <QAction>
#include <QApplication>

namespace velmora::qt {

ApplicationShell::ApplicationShell(ViewControllerEnvironment environment, AppDelegate& delegate)
    : window_(elements_), controller_(elements_, std::move(environment)), delegate_(delegate),
      recordsDialogs_(&window_), report_(controller_.state().decimalSeparator) {
    controller_.viewDidLoad();
    // The records live in the container, so a record's change is one of its unsaved changes.
    controller_.setRecordsServices(
        {[this] { return delegate_.persistentContainer().records(); }, &recordsDialogs_, &report_});
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
