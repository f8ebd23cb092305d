#include "app/qt/qt_run_loop.h"

#include <QCoreApplication>
#include <QThread>
#include <gtest/gtest.h>
#include <thread>

namespace velmora::test {
namespace {

// The hidapi worker hands its reports over so: whatever thread posts, the task runs on the
// application's thread, where all the logic lives, and only once that thread's events are run.
TEST(QtRunLoop, ATaskPostedFromAWorkerThreadRunsOnTheApplicationsThread) {
    QtRunLoop loop(QCoreApplication::instance());
    const QThread* ranOn = nullptr;
    int runs = 0;
    std::thread worker([&] {
        loop.post([&] {
            ranOn = QThread::currentThread();
            ++runs;
        });
    });
    worker.join();
    EXPECT_EQ(runs, 0);
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(ranOn, QCoreApplication::instance()->thread());
}

} // namespace
} // namespace velmora::test
