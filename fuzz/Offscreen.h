// The application that a fuzz target needs, made once.
#pragma once

#include <QApplication>

inline void useOffscreenApplication()
{
    static int argc = 1;
    static char name[] = "fuzz";
    static char *argv[] = {name, nullptr};
    static const bool offscreen = qputenv("QT_QPA_PLATFORM", "offscreen");
    static QApplication application(argc, argv);
    Q_UNUSED(offscreen)
}
