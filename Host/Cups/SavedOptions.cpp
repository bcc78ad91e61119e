// What the user has saved for queues.
#include "SavedOptions.h"

#include "Foundation/RegularFile.h"
#include "Printing/cups_api.h"

#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QRegularExpression>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <unistd.h>

namespace host {

using foundation::Or;
using foundation::Problem;

namespace {

constexpr int kMillisecondsToLock = 5000;
constexpr qint64 kLargestFile = qint64{4} * 1024 * 1024;
constexpr auto kNewFile = ".qnprint-new"; // behind the name
constexpr qsizetype kLongestName = 127;

struct Line
{
    QString kind; // "Dest", or "Default" for the default queue
    QString queue;
    QString preset;
    QByteArray options;
};

/// Names of queues, presets and kinds of line do not mind letter case.
bool isSame(const QString &one, const QString &other) { return one.compare(other, Qt::CaseInsensitive) == 0; }

/// Nil for what is no line about a queue.
std::optional<Line> readLine(const QByteArray &text)
{
    static const QRegularExpression form(R"(^\s*(dest|default)\s+([^\s/]+)(?:/(\S*))?\s*)",
                                         QRegularExpression::CaseInsensitiveOption);
    const QString line = QString::fromUtf8(text);
    const auto match = form.match(line);
    if (!match.hasMatch())
        return std::nullopt;
    return Line{match.captured(1), match.captured(2), match.captured(3), line.mid(match.capturedEnd()).toUtf8()};
}

OptionValues parsedOptions(const QByteArray &text)
{
    printing::CupsOptions options;
    options.addParsed(text.constData());
    OptionValues values;
    for (const cups_option_t &each : options)
        values.insert(QString::fromUtf8(each.name), QString::fromUtf8(each.value));
    return values;
}

QByteArray quotedValue(const QString &value)
{
    static const QRegularExpression plain("^[A-Za-z0-9_.,:+%@/-]+$");
    if (plain.match(value).hasMatch())
        return value.toUtf8();
    QString escaped = value;
    escaped.replace('\\', "\\\\").replace('"', "\\\"");
    return '"' + escaped.toUtf8() + '"';
}

/// Other programs take each of these for the end of a line, or of all of it, inside quotation marks too.
bool hasLineEnd(const OptionValues &options)
{
    const QString words = (options.keys() + options.values()).join(' ');
    return std::ranges::any_of(words, [](QChar each) { return each == '\n' || each == '\r' || each.isNull(); });
}

QByteArray lineText(const Line &line, const OptionValues &options)
{
    QByteArray text = line.kind.toUtf8() + ' ' + line.queue.toUtf8();
    if (!line.preset.isEmpty())
        text += '/' + line.preset.toUtf8();
    for (const auto &[keyword, value] : options.asKeyValueRange())
        text += ' ' + keyword.toUtf8() + '=' + quotedValue(value);
    return text;
}

QString systemFile() { return qEnvironmentVariable("CUPS_SERVERROOT", QN_CUPS_SERVERROOT) + "/lpoptions"; }
QString userFile() { return QDir::homePath() + "/.cups/lpoptions"; }

/// No lines when there is no file; nil when there is one that can't be read.
std::optional<QByteArrayList> linesOf(const QString &path)
{
    if (!QFileInfo::exists(path))
        return QByteArrayList();
    const auto file = foundation::openRegularFile(path);
    if (!file || (*file)->size() > kLargestFile)
        return std::nullopt;
    QByteArrayList lines = (*file)->readAll().split('\n');
    if (lines.last().isEmpty())
        lines.removeLast();
    return lines;
}

/// The old file stands until the new one is complete on disk. The new one has a name of its own, so that one that was
/// left behind does not stay; the lock keeps others away from it.
Or<void> replaceFile(const QString &path, const QByteArray &content)
{
    const QString target = QFileInfo::exists(path) ? QFileInfo(path).canonicalFilePath() : path; // behind a link
    const auto access = QFileInfo::exists(target) ? QFile::permissions(target) : QFile::ReadOwner | QFile::WriteOwner;
    QFile file(target + kNewFile);
    file.remove();
    const bool isWritten = file.open(QIODevice::WriteOnly | QIODevice::NewOnly, QFile::ReadOwner | QFile::WriteOwner) &&
                           file.write(content) == content.size() && file.flush() && ::fsync(file.handle()) == 0 &&
                           file.setPermissions(access);
    file.close();
    if (isWritten &&
        ::rename(QFile::encodeName(file.fileName()).constData(), QFile::encodeName(target).constData()) == 0)
        return {};
    const Problem problem{QString("%1: %2").arg(path, foundation::fileErrorText(file))};
    file.remove();
    return problem;
}

/// Every line about a queue, the system's first, as the user's count for more.
std::vector<Line> linesAbout(const QString &queue)
{
    std::vector<Line> found;
    for (const QString &path : {systemFile(), userFile()})
        for (const QByteArray &text : linesOf(path).value_or(QByteArrayList()))
            if (auto line = readLine(text); line && isSame(line->queue, queue))
                found.push_back(*std::move(line));
    return found;
}

} // namespace

QStringList SavedOptions::presets() const
{
    QStringList names;
    for (const Line &line : linesAbout(m_queue))
        if (!line.preset.isEmpty() && !names.contains(line.preset, Qt::CaseInsensitive))
            names.append(line.preset);
    names.sort(Qt::CaseInsensitive);
    return names;
}

OptionValues SavedOptions::options(const QString &preset) const
{
    OptionValues values;
    for (const Line &line : linesAbout(m_queue))
        if (isSame(line.preset, preset))
            values.insert(parsedOptions(line.options));
    return values;
}

Or<void> SavedOptions::checkName(const QString &preset)
{
    static const QRegularExpression form(R"(^[^\s/\\"'#\x00-\x1f]+$)");
    if (preset.toUtf8().size() <= kLongestName && form.match(preset).hasMatch())
        return {};
    return Problem{tr("“%1”: a name is one word without slashes and quotation marks").arg(preset.left(kLongestName))};
}

Or<void> SavedOptions::save(const QString &preset, const OptionValues &options) const
{
    return replace(preset, &options);
}

Or<void> SavedOptions::remove(const QString &preset) const
{
    auto removed = replace(preset, nullptr);
    if (removed && presets().contains(preset, Qt::CaseInsensitive))
        return Problem{tr("%1: has the preset “%2” for all users; it stays").arg(systemFile(), preset)};
    return removed;
}

Or<void> SavedOptions::replace(const QString &preset, const OptionValues *options) const
{
    const QString path = userFile();
    if (options && hasLineEnd(*options))
        return Problem{tr("%1: can't hold a value with a line end").arg(path)};
    const QString folder = QFileInfo(path).path();
    if (!QDir().exists(folder) && QDir().mkpath(folder))
        QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    // From reading to writing nobody else may write: what another dialog saves meanwhile would be lost.
    QLockFile lock(path + ".lock");
    if (!lock.tryLock(kMillisecondsToLock))
        return Problem{tr("%1: can't be written just now").arg(path)};
    const auto lines = linesOf(path);
    if (!lines)
        return Problem{tr("%1: can't be read").arg(path)};

    QByteArray content;
    for (const QByteArray &line : replaced(*lines, preset, options))
        content += line + '\n';
    return replaceFile(path, content);
}

/// The lines of the file with the preset's own replaced, or left out without options.
QByteArrayList SavedOptions::replaced(const QByteArrayList &lines, const QString &preset,
                                      const OptionValues *options) const
{
    QByteArrayList result;
    Line mine{"Dest", m_queue, preset, {}};
    bool placed = !options;
    for (const QByteArray &text : lines) {
        const auto line = readLine(text);
        if (!line || !isSame(line->queue, m_queue) || !isSame(line->preset, preset)) {
            result.append(text);
        } else if (!placed) {
            mine.kind = line->kind;
            result.append(lineText(mine, *options));
            placed = true;
        } else if (isSame(line->kind, "Default")) {
            result.append("Default " + m_queue.toUtf8()); // stays the default queue without the preset
        }
    }
    if (!placed)
        result.append(lineText(mine, *options));
    return result;
}

} // namespace host
