// velmora: the desktop application.

#include "app/qt/application_shell.h"
#include "app/qt/desktop_workspace.h"
#include "app/qt/dialog_screen_presenter.h"
#include "app/qt/light_appearance.h"
#include "app/qt/options.h"
#include "app/qt/qt_locale.h"
#include "app/qt/qt_localized_strings.h"
#include "app/qt/qt_run_loop.h"
#include "app/qt/sqlite_store_loader.h"
#include "app/qt/startup_report.h"
#include "data/reference_loader.h"
#include "device/hidapi/hidapi_manager.h"
#include "device/sim/replayed_readings.h"
#include "device/sim/simulated_instrument.h"
#include "device/sim/simulated_session.h"
#include "foundation/bundle.h"
#include "foundation/posix/sys_log.h"
#include "ui/qt/message_box_alert_presenter.h"

#include <QApplication>
#include <QIcon>
#include <QScreen>
#include <QStandardPaths>
#include <iostream>
#include <random>

namespace velmora::qt {
namespace {

// Where the instrument is: on USB, or simulated. Nothing, with the reason on standard error,
// when the readings file cannot be read.
std::optional<HIDDeviceConnector::ManagerFactory>
instrumentManagers(const Options& options, Log& log, AlertPresenter& alerts) {
    if (!options.simulate) {
        return hidapi::hidapiManagerFactory(log, [&alerts] {
            alerts.runModal("The instrument cannot be opened",
                            "The Velmora refractometer is plugged in, but this user may not "
                            "open it. Install the udev rule 70-velmora.rules (see the README), "
                            "then unplug the instrument and plug it in again.",
                            AlertStyle::Warning, {"OK"});
        });
    }
    if (options.simulate->empty()) {
        return sim::simulatedInstrumentFactory(
            std::make_shared<sim::SimulatedSession>(std::random_device{}()));
    }
    std::vector<std::uint16_t> readings;
    std::string error;
    if (!sim::loadReadingFile(*options.simulate, readings, error)) {
        std::cerr << "velmora: " << error << '\n';
        return std::nullopt;
    }
    return sim::simulatedInstrumentFactory(
        std::make_shared<sim::ReplayedReadings>(std::move(readings)));
}

AppDelegate::ContainerFactory containerInDataFolder() {
    const std::filesystem::path folder(
        QStandardPaths::writableLocation(QStandardPaths::AppDataLocation).toStdU16String());
    return [folder] {
        return loadSqliteStore(folder / (std::string(AppDelegate::containerName) + ".sqlite"),
                               Bundle::main().pathForResource(AppDelegate::containerName, "sql"));
    };
}

// The bitmaps installed beside the reference table. The icon theme holds the same pictures, but
// finding them there parses the theme's index: the most work left after the first paint.
QIcon bundledIcon() {
    QIcon icon;
    for (const char* size : {"48", "128"}) {
        if (const auto file =
                Bundle::main().pathForResource(std::string(VELMORA_APP_ID) + "-" + size, "png")) {
            icon.addFile(QString::fromStdString(file->string()));
        }
    }
    return icon;
}

// Everything the application is made of lives in run() and goes in the reverse order of its
// making, so the shutdown order reads from the bottom up:
// 1. QApplication::exec() returns after aboutToQuit, where the delegate tells the connector
//    applicationTerminated: its timer stops and its HID manager is unscheduled, which stops and
//    joins the hidapi worker thread. From then on nothing is sent to the instrument or posted.
// 2. The shell goes: the window, then the controller, which stops observing the connector.
// 3. The delegate goes, then the connector, which releases its manager and device (the worker
//    already joined, nothing posts to the run loop any more).
// 4. The run loop goes, dropping the tasks still queued, then the application object, the alert
//    presenter and the log.
int run(int argc, char** argv) {
    const auto started = std::chrono::steady_clock::now();
    Options options;
    if (const auto status = parseOptions(argc, argv, options)) {
        return *status;
    }

    SysLog log(options.verbose);
    MessageBoxAlertPresenter alerts;
    const auto managers = instrumentManagers(options, log, alerts);
    if (!managers) {
        return 1;
    }

    QApplication application(argc, argv);
    QApplication::setApplicationName("Velmora");
    QApplication::setApplicationVersion(VELMORA_VERSION);
    QGuiApplication::setDesktopFileName(VELMORA_APP_ID);
    useLightAppearance(application);

    QtRunLoop runLoop(&application);
    HIDDeviceConnector connector(*managers, runLoop, NotificationCenter::defaultCenter(), log);
    connector.becomeSharedInstance();

    QtSystemLocale locale;
    DesktopWorkspace workspace;
    DialogScreenPresenter screens(workspace, Bundle::main());
    const QtLocalizedStrings strings("AppDelegate");
    AppDelegate delegate(connector, containerInDataFolder(), alerts, strings, log);
    const auto referenceFile = options.reference
                                   ? std::optional<std::filesystem::path>(*options.reference)
                                   : referenceFilePath(Bundle::main());
    ApplicationShell shell({runLoop, NotificationCenter::defaultCenter(), alerts, locale,
                            referenceFile, std::cout, screens, connector},
                           delegate);
    if (options.measureStartup) {
        reportStartupThenQuit(shell.window(), started, std::cout);
    }
    // A small screen gets a window that fits it.
    if (const QScreen* screen = QGuiApplication::primaryScreen()) {
        shell.window().resize(shell.window().size().boundedTo(screen->availableSize()));
    }
    // The first paint does not need the icon; the window manager takes it a moment later.
    afterFirstPaint(shell.window(), [] { QApplication::setWindowIcon(bundledIcon()); });
    shell.window().show();
    return QApplication::exec();
}

} // namespace
} // namespace velmora::qt

int main(int argc, char** argv) {
    return velmora::qt::run(argc, argv);
}
