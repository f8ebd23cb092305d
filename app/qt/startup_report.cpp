#include "app/qt/startup_report.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <fstream>
#include <iomanip>
#include <optional>
#include <ostream>
#include <unistd.h>

namespace velmora::qt {
namespace {

// The resident set in bytes, as the kernel counts it.
std::optional<long long> residentBytes() {
    std::ifstream statm("/proc/self/statm");
    long long sizePages = 0;
    long long residentPages = 0;
    if (!(statm >> sizePages >> residentPages)) {
        return std::nullopt;
    }
    return residentPages * sysconf(_SC_PAGESIZE);
}

class FirstPaint final : public QObject {
public:
    FirstPaint(QWidget& window, std::function<void()> task)
        : QObject(&window), task_(std::move(task)) {
        window.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            watched->removeEventFilter(this);
            // After the work queued so far, the set-up's included.
            QTimer::singleShot(0, this, [this] {
                task_();
                deleteLater();
            });
        }
        return false;
    }

private:
    std::function<void()> task_;
};

void report(std::chrono::steady_clock::time_point started, std::ostream& out) {
    const std::chrono::duration<double, std::milli> elapsed =
        std::chrono::steady_clock::now() - started;
    out << "window shown after " << std::fixed << std::setprecision(1) << elapsed.count() << " ms";
    if (const auto bytes = residentBytes()) {
        out << ", resident memory " << std::setprecision(1)
            << static_cast<double>(*bytes) / (1024.0 * 1024.0) << " MiB";
    }
    out << std::endl;
    // Not quit(): that asks the window to close as the user would, and the delegate then
    // opens (on a first start, creates) the container to save it, which is no part of start-up.
    QCoreApplication::exit(0);
}

} // namespace

void afterFirstPaint(QWidget& window, std::function<void()> task) {
    new FirstPaint(window, std::move(task));
}

void reportStartupThenQuit(QWidget& window, std::chrono::steady_clock::time_point started,
                           std::ostream& out) {
    afterFirstPaint(window, [started, &out] { report(started, out); });
}

} // namespace velmora::qt
