// Any bytes as lines of a script: one reply a line, whatever the line is.
#include "Script.h"

#include <QApplication>

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static int argc = 1;
    static char name[] = "fuzz";
    static char *argv[] = {name, nullptr};
    static const bool offscreen = qputenv("QT_QPA_PLATFORM", "offscreen");
    static QApplication application(argc, argv);
    Q_UNUSED(offscreen)

    host::Script script;
    const QByteArray input(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    for (const QByteArray &line : input.split('\n'))
        script.reply(line);
    return 0;
}
