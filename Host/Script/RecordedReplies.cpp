// The differences are found by diff, which every system has that compiles or tests anything.
#include "RecordedReplies.h"

#include "Foundation/RegularFile.h"

#include <QJsonDocument>
#include <QProcess>
#include <QTemporaryDir>

namespace host {

using foundation::Or;
using foundation::Problem;

namespace {

constexpr auto kNow = "replies now";
constexpr int kForever = -1;

/// What does not get a reply is no reply either.
QByteArrayList repliesOf(const QByteArray &text)
{
    QByteArrayList lines;
    for (const QByteArray &line : text.split('\n'))
        if (!line.trimmed().isEmpty() && !line.startsWith('#'))
            lines.append(line);
    return lines;
}

/// The same for the same values, whatever wrote them. What is no JSON stays as it is.
QByteArray writtenOut(const QByteArray &reply)
{
    const QJsonDocument document = QJsonDocument::fromJson(reply);
    return document.isNull() ? reply + '\n' : document.toJson(QJsonDocument::Indented);
}

QByteArray writtenOut(const QByteArrayList &replies)
{
    QByteArray text;
    for (qsizetype i = 0; i < replies.size(); ++i)
        text += "reply " + QByteArray::number(i + 1) + '\n' + writtenOut(replies[i]);
    return text;
}

QByteArray unifiedDiff(const QByteArray &expected, const QByteArray &now, const QString &name)
{
    const QTemporaryDir directory;
    QStringList paths;
    for (const QByteArray &text : {expected, now}) {
        paths.append(directory.filePath(QString::number(paths.size())));
        QFile file(paths.last());
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            return "the replies differ from those in " + name.toUtf8() + "; " + file.errorString().toUtf8() + '\n';
    }
    QProcess diff;
    diff.start("diff", QStringList{"-u", "--show-function-line=^reply ", "--label", name, "--label", kNow} + paths);
    if (!diff.waitForFinished(kForever))
        return "the replies differ from those in " + name.toUtf8() + "; diff: " + diff.errorString().toUtf8() + '\n';
    return diff.readAllStandardOutput();
}

} // namespace

Or<std::unique_ptr<RecordedReplies>> RecordedReplies::open(const QString &record, const QString &expect)
{
    std::unique_ptr<RecordedReplies> replies(new RecordedReplies);
    if (!expect.isEmpty()) {
        const auto file = foundation::openRegularFile(expect);
        if (!file)
            return file.problem();
        replies->m_expectedName = expect;
        replies->m_expected = repliesOf((*file)->readAll());
    }
    if (!record.isEmpty()) {
        replies->m_record = std::make_unique<QSaveFile>(record);
        if (!replies->m_record->open(QIODevice::WriteOnly))
            return Problem{QString("%1: %2").arg(record, replies->m_record->errorString())};
    }
    return replies;
}

void RecordedReplies::add(const QByteArray &reply)
{
    m_replies.append(reply);
    if (m_record)
        m_record->write(reply + '\n');
}

Or<void> RecordedReplies::write()
{
    if (!m_record || m_record->commit())
        return {};
    return Problem{QString("%1: %2").arg(m_record->fileName(), m_record->errorString())};
}

QByteArray RecordedReplies::differences() const
{
    if (m_expectedName.isEmpty())
        return {};
    const QByteArray expected = writtenOut(m_expected);
    const QByteArray now = writtenOut(m_replies);
    return expected == now ? QByteArray() : unifiedDiff(expected, now, m_expectedName);
}

} // namespace host
