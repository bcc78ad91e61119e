// Runs the tests of one program: with the application that controls need, and without a display.
#include "Messages.h"

#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QCoreApplication::setOrganizationName("qnprint");
    QCoreApplication::setApplicationName("qnprint-tests");
    support::watchMessages();
    return RUN_ALL_TESTS();
}
