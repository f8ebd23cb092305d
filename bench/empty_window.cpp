// The yardstick for velmora's start-up: the least a Qt Widgets application does to put a window
// of velmora's size on the screen. It quits once the window has been painted and the work queued
// by then has run, as `velmora --measure-startup` does.

#include <QApplication>
#include <QEvent>
#include <QMainWindow>
#include <QTimer>

namespace {

class QuitAfterFirstPaint final : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            watched->removeEventFilter(this);
            QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        }
        return false;
    }
};

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QMainWindow window;
    window.resize(1280, 800);
    window.installEventFilter(new QuitAfterFirstPaint(&window));
    window.show();
    return QApplication::exec();
}
