// Any bytes as a PPD: the dialog opens on it, or says in one sentence why not.
#include "Offscreen.h"
#include "Script/Script.h"

#include <QJsonDocument>
#include <QTemporaryFile>

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    useOffscreenApplication();
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
