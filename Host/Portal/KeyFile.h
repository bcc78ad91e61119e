// Files of keys in groups, as desktops have them.
#pragma once

#include <QByteArray>
#include <QStringList>

#include <optional>

namespace host {

class KeyFile
{
public:
    explicit KeyFile(QByteArray text)
        : m_text(std::move(text))
    {}

    /// Nil when there is no such key. Of several the last counts, as everywhere.
    std::optional<QString> value(const QString &group, const QString &key) const;
    /// Keys of a group, in order.
    QStringList keys(const QString &group) const;

    /// Everything else stays as somebody wrote it. The group is made where it is missing.
    void setValue(const QString &group, const QString &key, const QString &value);
    void remove(const QString &group, const QString &key);

    const QByteArray &text() const { return m_text; }

private:
    QByteArray m_text;
};

} // namespace host
