// Bundle directories and their string tables.
#include "Bundle.h"

#include "RegularFile.h"
#include "StringTable.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTranslator>

namespace foundation {

namespace {

constexpr auto kFallbackLocalization = "en";
constexpr auto kNoLocalization = "none";
constexpr auto kTableContext = "Localizable";
constexpr qint64 kLargestInfoFile = 65536;

} // namespace

Or<Bundle::Info> Bundle::readInfo(const QString &path)
{
    const QString name = path + "/Info.json";
    const auto file = openRegularFile(name);
    if (!file) // whose sentence begins with the name
        return Problem{
            tr("%1: not a plug-in bundle (Info.json: %2)").arg(path, file.problem().sentence.mid(name.size() + 2))};
    QJsonParseError parse;
    const QJsonObject object = QJsonDocument::fromJson((*file)->read(kLargestInfoFile), &parse).object();
    if (parse.error != QJsonParseError::NoError)
        return Problem{QString("%1/Info.json: %2").arg(path, parse.errorString())};
    Info info{object["identifier"].toString(), object["executable"].toString(), object["principalClass"].toString(),
              object["abiVersion"].toInt(), object["build"].toString()};
    if (info.executable.isEmpty() || info.principalClass.isEmpty())
        return Problem{tr("%1/Info.json: names no executable or no principal class").arg(path)};
    return info;
}

Or<std::unique_ptr<Bundle>> Bundle::open(const QString &path, const QString &localization)
{
    if (!QFileInfo(path).isDir())
        return Problem{tr("%1: no such plug-in bundle").arg(path)};
    auto info = readInfo(path);
    if (!info)
        return info.problem();
    std::unique_ptr<Bundle> bundle(new Bundle(QFileInfo(path).absoluteFilePath(), *std::move(info)));
    bundle->m_requested = localization;
    if (localization != kNoLocalization)
        bundle->loadTable(localization);
    return bundle;
}

Bundle::Bundle(QString path, Info info)
    : m_path(std::move(path))
    , m_info(std::move(info))
{}

Bundle::~Bundle() = default;

void Bundle::loadTable(const QString &localization)
{
    const QStringList candidates{localization, localization.section('_', 0, 0), kFallbackLocalization};
    for (const QString &candidate : candidates) {
        const auto file = pathForResource("Localizable_" + candidate, "qm");
        if (!file)
            continue;
        auto table = loadStringTable(*file);
        if (!table)
            continue;
        m_localization = candidate;
        m_table = std::move(table);
        return;
    }
}

QString Bundle::localizedString(const QString &key, const QString &value) const
{
    QString text = m_table ? m_table->translate(kTableContext, key.toUtf8().constData()) : QString();
    if (!text.isEmpty())
        return text;
    return value.isEmpty() ? key : value;
}

QStringList Bundle::preferredLocalizations() const
{
    return m_localization.isEmpty() ? QStringList() : QStringList(m_localization);
}

std::optional<QString> Bundle::pathForResource(const QString &name, const QString &extension) const
{
    const QString path = m_path + "/Resources/" + name + '.' + extension;
    return QFileInfo(path).isFile() ? std::optional(path) : std::nullopt;
}

} // namespace foundation
