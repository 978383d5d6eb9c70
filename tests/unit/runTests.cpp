#include "runTests.h"

#include <QApplication>
#include <gmock/gmock.h>

// Unit tests of widgets need one application object for the whole program; it is drawn offscreen unless told otherwise.
int runTests(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
