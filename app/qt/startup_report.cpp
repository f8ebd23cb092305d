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
    FirstPaint(QWidget& window, std::chrono::steady_clock::time_point started, std::ostream& out)
        : QObject(&window), started_(started), out_(out) {
        window.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            watched->removeEventFilter(this);
            // After the work queued so far, the set-up's included.
            QTimer::singleShot(0, this, [this] { report(); });
        }
        return false;
    }

private:
    void report() {
        const std::chrono::duration<double, std::milli> elapsed =
            std::chrono::steady_clock::now() - started_;
        out_ << "window shown after " << std::fixed << std::setprecision(1) << elapsed.count()
             << " ms";
        if (const auto bytes = residentBytes()) {
            out_ << ", resident memory " << std::setprecision(1)
                 << static_cast<double>(*bytes) / (1024.0 * 1024.0) << " MiB";
        }
        out_ << std::endl;
        QCoreApplication::quit();
    }

    std::chrono::steady_clock::time_point started_;
    std::ostream& out_;
};

} // namespace

void reportStartupThenQuit(QWidget& window, std::chrono::steady_clock::time_point started,
                           std::ostream& out) {
    new FirstPaint(window, started, out);
}

} // namespace velmora::qt
