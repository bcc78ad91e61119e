#include "KeyFile.h"

#include <QStringList>

namespace host {

namespace {

/// "\s" is a space, "\n" the end of a line; what else follows a backslash stands for itself.
QString unescaped(const QString &value)
{
    QString plain;
    for (qsizetype i = 0; i < value.size(); ++i) {
        if (value[i] != '\\' || i + 1 == value.size()) {
            plain += value[i];
            continue;
        }
        const QChar next = value[++i];
        plain += next == 's' ? ' ' : next == 'n' ? '\n' : next == 't' ? '\t' : next == 'r' ? '\r' : next;
    }
    return plain;
}

struct Line
{
    enum class Kind { other, group, key };

    explicit Line(const QByteArray &text)
    {
        const QString line = QString::fromUtf8(text).trimmed();
        const qsizetype equals = line.indexOf('=');
        if (line.startsWith('#'))
            return;
        if (line.startsWith('[') && line.endsWith(']')) {
            kind = Kind::group;
            name = line.mid(1, line.size() - 2);
        } else if (equals > 0) {
            kind = Kind::key;
            name = line.left(equals).trimmed();
            value = unescaped(line.mid(equals + 1).trimmed());
        }
    }

    Kind kind = Kind::other;
    QString name;
    QString value;
};

/// Calls `use(index, line)` for each key of a group.
template <class Use>
void forKeys(const QByteArray &text, const QString &group, Use use)
{
    bool isInGroup = false;
    qsizetype index = 0;
    for (const QByteArray &each : text.split('\n')) {
        const Line line(each);
        if (line.kind == Line::Kind::group)
            isInGroup = line.name == group;
        else if (line.kind == Line::Kind::key && isInGroup)
            use(index, line);
        ++index;
    }
}

} // namespace

std::optional<QString> KeyFile::value(const QString &group, const QString &key) const
{
    std::optional<QString> value;
    forKeys(m_text, group, [&](qsizetype, const Line &line) {
        if (line.name == key)
            value = line.value;
    });
    return value;
}

QStringList KeyFile::keys(const QString &group) const
{
    QStringList keys;
    forKeys(m_text, group, [&](qsizetype, const Line &line) { keys.append(line.name); });
    return keys;
}

void KeyFile::remove(const QString &group, const QString &key)
{
    QList<QByteArray> lines = m_text.split('\n');
    qsizetype removed = 0;
    forKeys(m_text, group, [&](qsizetype index, const Line &line) {
        if (line.name == key)
            lines.removeAt(index - removed++);
    });
    m_text = lines.join('\n');
}

void KeyFile::setValue(const QString &group, const QString &key, const QString &value)
{
    remove(group, key);
    QList<QByteArray> lines = m_text.split('\n');
    qsizetype at = 0;
    while (at < lines.size() && !(Line(lines[at]).kind == Line::Kind::group && Line(lines[at]).name == group))
        ++at;
    if (at == lines.size()) {
        if (lines.last().isEmpty())
            lines.removeLast();
        lines << ('[' + group.toUtf8() + ']') << QByteArray();
        at = lines.size() - 2;
    }
    lines.insert(at + 1, key.toUtf8() + '=' + value.toUtf8());
    m_text = lines.join('\n');
}

} // namespace host
