// frame_latency [SECONDS]: the real main window, on the simulated instrument's gemmologist at
// work (ten readings a second, automatic capture on), timed from each reading's arrival on the
// main thread to the end of the frame that paints it: the figure and the strip chart drawn and the
// window's backing store flushed to the display. Prints the median, the 95th percentile and the
// worst, in milliseconds, of the frames that painted a reading. Run it under Xvfb (bench/startup
// does the same for start-up): offscreen, nothing is flushed anywhere.

#include "app/qt/qt_run_loop.h"
#include "data/reference_loader.h"
#include "device/sim/simulated_instrument.h"
#include "device/sim/simulated_session.h"
#include "foundation/bundle.h"
#include "ui/qt/main_window_widget.h"
#include "ui/view_controller.h"

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>
#include <algorithm>
#include <iostream>
#include <optional>
#include <vector>

namespace velmora::qt {
namespace {

using Clock = std::chrono::steady_clock;

struct Nobody final : AlertPresenter, ScreenPresenter, Log {
    std::size_t runModal(const std::string& message, const std::string& informative, AlertStyle,
                         const std::vector<std::string>&) override {
        std::cerr << "frame_latency: alert: " << message << " " << informative << '\n';
        return 0;
    }
    void presentTutorialScreen() override {}
    void presentContactScreen() override {}
    void info(std::string_view) override {}
    void error(std::string_view line) override { std::cerr << line << '\n'; }
};

// Delivers the window's frame itself, so it knows when the frame is done: painting and the
// flush both happen inside the update request's delivery.
class FrameTimer final : public QObject {
public:
    FrameTimer(QWidget& window, QWidget& figure, QWidget& chart)
        : window_(window), figure_(figure), chart_(chart) {
        for (QWidget* widget : {&window_, &figure_, &chart_}) {
            widget->installEventFilter(this);
        }
    }

    void readingArrived() {
        if (!arrived_) {
            arrived_ = Clock::now();
            figurePainted_ = chartPainted_ = false;
        }
    }

    std::vector<double> latencies;
    int withFigure = 0; // of those frames, the ones that painted a new figure too

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            figurePainted_ |= watched == &figure_;
            chartPainted_ |= watched == &chart_;
        }
        if (watched != &window_ || event->type() != QEvent::UpdateRequest || delivering_) {
            return false;
        }
        delivering_ = true;
        QCoreApplication::sendEvent(&window_, event);
        delivering_ = false;
        // The chart moves with every reading; the figure repaints only when its text changed.
        if (arrived_ && chartPainted_) {
            latencies.push_back(
                std::chrono::duration<double, std::milli>(Clock::now() - *arrived_).count());
            withFigure += figurePainted_ ? 1 : 0;
            arrived_.reset();
        }
        return true;
    }

private:
    QWidget& window_;
    QWidget& figure_;
    QWidget& chart_;
    std::optional<Clock::time_point> arrived_;
    bool figurePainted_ = false;
    bool chartPainted_ = false;
    bool delivering_ = false;
};

double percentile(std::vector<double> values, double fraction) {
    std::sort(values.begin(), values.end());
    return values[static_cast<std::size_t>(fraction * static_cast<double>(values.size() - 1))];
}

int run(int argc, char** argv) {
    QApplication application(argc, argv);
    const int seconds = argc > 1 ? std::max(1, std::atoi(argv[1])) : 30;
    QtRunLoop runLoop(&application);
    NotificationCenter center;
    Nobody nobody;
    HIDDeviceConnector instrument(
        sim::simulatedInstrumentFactory(std::make_shared<sim::SimulatedSession>(7)), runLoop,
        center, nobody);
    FixedLocale locale(".");
    MainWindow elements;
    MainWindowWidget window(elements);
    ViewController controller(elements,
                              {runLoop, center, nobody, locale, referenceFilePath(Bundle::main()),
                               std::cerr, nobody, instrument});
    auto* figure = window.findChild<QWidget*>("usb_device_reading");
    auto* chart = window.findChild<QWidget*>("chart_reading");
    if (!figure || !chart) {
        std::cerr << "frame_latency: the window has no figure or chart\n";
        return 1;
    }
    FrameTimer frames(window, *figure, *chart);
    // Registered before the controller's own observer, so it sees the reading first.
    center.addObserver<HIDDeviceDataReceived>(
        [&frames](const HIDDeviceDataReceived&) { frames.readingArrived(); });
    controller.viewDidLoad();
    window.resize(1280, 800);
    window.show();

    QTimer::singleShot(500, &window, [&] {
        elements.check_autoCapture.performClick();
        elements.btn_connected.performClick();
    });
    QTimer::singleShot(500 + seconds * 1000, &application, [&] {
        instrument.disconnectDataToDevice();
        QApplication::quit();
    });
    QApplication::exec();
    if (frames.latencies.empty()) {
        std::cerr << "frame_latency: no frame painted a reading\n";
        return 1;
    }
    std::cout << "frames " << frames.latencies.size() << " (" << frames.withFigure
              << " with a new figure), reading to painted frame: median "
              << percentile(frames.latencies, 0.5) << " ms, 95th percentile "
              << percentile(frames.latencies, 0.95) << " ms, worst "
              << percentile(frames.latencies, 1.0) << " ms; series "
              << elements.lbl_seriesValues.text() << '\n';
    return 0;
}

} // namespace
} // namespace velmora::qt

int main(int argc, char** argv) {
    return velmora::qt::run(argc, argv);
}
