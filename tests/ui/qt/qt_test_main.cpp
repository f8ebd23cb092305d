// The widget tests' main: the application object first, offscreen wherever the tests are
// started from, with the look the application has.

#include "app/qt/light_appearance.h"

#include <QApplication>
#include <gmock/gmock.h>

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    velmora::qt::useLightAppearance(application);
    ::testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
