#include "app/qt/application_shell.h"

#include <QAction>
#include <QApplication>

namespace velmora::qt {

ApplicationShell::ApplicationShell(ShellServices s)
    : window_(elements_), screens_(s.workspace, s.bundle, &window_),
      controller_(elements_, {s.runLoop, s.notificationCenter, s.alertPresenter, s.locale,
                              s.referenceFile, s.standardOutput, screens_, s.hidDeviceConnector}),
      delegate_(s.hidDeviceConnector, std::move(s.makeContainer), s.alertPresenter,
                s.localizedStrings, s.log) {
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
