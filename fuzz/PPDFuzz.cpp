// Any bytes as a PPD: the dialog opens on it, or says in one sentence why not.
#include "Script.h"

#include <QApplication>
#include <QJsonDocument>
#include <QTemporaryFile>

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

    QTemporaryFile file;
    if (!file.open() || file.write(reinterpret_cast<const char *>(data), static_cast<qint64>(size)) < 0)
        return 0;
    file.close();
    host::Script script;
    script.reply(QJsonDocument(QJsonObject{{"do", "open"}, {"ppd", file.fileName()}}).toJson(QJsonDocument::Compact));
    for (const char *line : {R"({"do":"show","panel":"basic"})", R"({"do":"state"})", R"({"do":"print"})",
                             R"({"do":"summary","panel":"basic"})", R"({"do":"show","panel":"advanced"})"})
        script.reply(line);
    return 0;
}
