// Runs the tests of one program: with the application that controls need, and without a display.
#include "Messages.h"

#include <QApplication>

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>

int main(int argc, char *argv[])
{
    if (argc > 1 && std::strcmp(argv[1], "converse-with-server") == 0)
        return EXIT_FAILURE; // the tests are not the program: one of them would run them all again
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QCoreApplication::setOrganizationName("qnprint");
    QCoreApplication::setApplicationName("qnprint-tests");
    support::watchMessages();
    return RUN_ALL_TESTS();
}
