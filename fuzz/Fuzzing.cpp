// What the fuzz targets share.
#include "Fuzzing.h"

#include "Session/Environment.h"
#include "Session/PlugIn.h"

#include "Foundation/NotificationCenter.h"
#include "Foundation/SystemLog.h"
#include "Foundation/UserDefaults.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QSettings>
#include <QTemporaryDir>

namespace fuzzing {

namespace {

constexpr auto kNowhere = "/proc/none/fuzz.conf"; // nothing is read there, and nothing can be kept

const QTemporaryDir &folder()
{
    static const QTemporaryDir instance;
    return instance;
}

} // namespace

QString pathOf(const QString &name) { return folder().filePath(name); }

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    promise(file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(content) == content.size());
}

void promise(bool kept)
{
    if (!kept)
        __builtin_trap();
}

void beginRun()
{
    host::Environment().apply();
    auto settings = std::make_unique<QSettings>(kNowhere, QSettings::IniFormat);
    settings->clear(); // Qt remembers what could not be kept
    foundation::UserDefaults::standard().useStore(std::move(settings));
}

QString bundleCopy()
{
    static const QString path = [] {
        const QString original = QFileInfo(*host::findBundle({})).canonicalFilePath();
        const QString copy = pathOf("Copy.plugin");
        promise(QDir().mkpath(copy + "/Resources"));
        for (const QString &name : QDir(original + "/Resources").entryList(QDir::Files))
            promise(QFile::copy(original + "/Resources/" + name, copy + "/Resources/" + name));
        for (const QString &code : QDir(original).entryList({"*.so"}))
            promise(QFile::link(original + '/' + code, copy + '/' + code));
        promise(QFile::copy(original + "/Info.json", copy + "/Info.json"));
        return copy;
    }();
    return path;
}

QJsonObject reply(host::Script &script, const QByteArray &line)
{
    const auto text = script.reply(line);
    if (!text)
        return {};
    const auto json = QJsonDocument::fromJson(*text);
    promise(!text->contains('\n') && json.isObject() && json["ok"].isBool());
    return json.object();
}

QJsonObject reply(host::Script &script, const QJsonObject &request)
{
    return reply(script, QJsonDocument(request).toJson(QJsonDocument::Compact));
}

void lookAround(host::Script &script)
{
    for (const char *line : {R"({"do":"show","panel":"basic"})", R"({"do":"summary","panel":"basic"})",
                             R"({"do":"pick","panel":"basic","control":"mFormFeedModePopUp","index":1})",
                             R"({"do":"paper","name":"RollA4"})", R"({"do":"show","panel":"advanced"})",
                             R"({"do":"click","panel":"advanced","control":"mReversalChkBx"})",
                             R"({"do":"summary","panel":"advanced"})", R"({"do":"print"})", R"({"do":"job"})"})
        reply(script, QByteArray(line));
    promise(reply(script, QByteArray(R"({"do":"state"})"))["ok"].toBool());
}

} // namespace fuzzing

/// The folder is the home before anything asks for it. The bundle's code is loaded, so that its coverage counts from
/// the beginning, and tests the system's version, as it does that once and remembers the result.
extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    qputenv("HOME", QFile::encodeName(fuzzing::pathOf({})));
    qputenv("XDG_CACHE_HOME", QFile::encodeName(fuzzing::pathOf("cache")));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(fuzzing::pathOf("config")));
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argc = 1;
    static char name[] = "fuzz";
    static char *argv[] = {name, nullptr};
    [[maybe_unused]] static const auto *const application = new QApplication(argc, argv); // exit() comes from anywhere
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    foundation::setLogSink([](const QString &) {});
    const auto plugIn = host::PlugIn::load(*host::findBundle({}), "none");
    fuzzing::promise(static_cast<bool>(plugIn));
    const auto principal = plugIn->entry->principalObject(plugIn->bundle->info().principalClass);
    fuzzing::promise(principal && principal->initWithBundle(*plugIn->bundle));
    return 0;
}
