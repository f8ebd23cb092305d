#include "app/qt/qt_run_loop.h"

#include <QCoreApplication>
#include <QThread>
#include <gtest/gtest.h>
#include <thread>

namespace velmora {
namespace {

using namespace std::chrono_literals;

class QtRunLoopTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        static int argc = 1;
        static char name[] = "qt_foundation_tests";
        static char* argv[] = {name, nullptr};
        static QCoreApplication app(argc, argv);
    }
};

TEST_F(QtRunLoopTest, TasksPostedFromAWorkerRunOnTheMainThreadInOrder) {
    QtRunLoop loop(QCoreApplication::instance());
    std::vector<int> order;
    bool allOnMain = true;
    std::thread worker([&] {
        for (int i = 0; i < 3; ++i) {
            loop.post([&, i] {
                allOnMain = allOnMain && QThread::currentThread() == qApp->thread();
                order.push_back(i);
                if (order.size() == 3) {
                    QCoreApplication::quit();
                }
            });
        }
    });
    worker.join();
    EXPECT_TRUE(order.empty()); // nothing runs before the loop does
    QCoreApplication::exec();
    EXPECT_EQ(order, (std::vector<int>{0, 1, 2}));
    EXPECT_TRUE(allOnMain);
}

TEST_F(QtRunLoopTest, ATimerRepeatsUntilItCancelsItself) {
    QtRunLoop loop(QCoreApplication::instance());
    int ticks = 0;
    RunLoop::TimerId id = 0;
    id = loop.scheduleRepeating(1ms, [&] {
        if (++ticks == 3) {
            loop.cancel(id);
            loop.post([] { QCoreApplication::quit(); });
        }
    });
    QCoreApplication::exec();
    EXPECT_EQ(ticks, 3);
    loop.cancel(id); // a second cancel is harmless
}

} // namespace
} // namespace velmora
