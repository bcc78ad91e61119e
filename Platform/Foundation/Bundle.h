// A directory of code and resources, as its owner sees it: texts, pictures and interface files by name.
// Used by every room above; knows nothing of widgets.
#pragma once

#include "Or.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

class QTranslator;

namespace foundation {

/// A bundle directory: `Info.json`, the shared object that it names, and `Resources/`.
class Bundle
{
    Q_DECLARE_TR_FUNCTIONS(foundation::Bundle)

public:
    /// What `Info.json` says. `abiVersion` is 0 and `build` empty when the file names none.
    struct Info
    {
        QString identifier;
        QString executable;
        QString principalClass;
        int abiVersion = 0;
        QString build; // what its code has in common with whoever can load it
    };

    /// Reads `Info.json`; a problem when the directory or the file is missing or malformed.
    /// `localization` names a string table ("en", "ja", "zh_CN"); one without a table falls back to its language, then
    /// to English. The name "none" loads no table, so that every text shows as its key.
    static Or<std::unique_ptr<Bundle>> open(const QString &path, const QString &localization);

    ~Bundle();
    Bundle(const Bundle &) = delete;
    Bundle &operator=(const Bundle &) = delete;

    const QString &path() const { return m_path; }
    const Info &info() const { return m_info; }

    /// The text of `key` in the table; without one `value`, and when that is empty too, the key itself.
    QString localizedString(const QString &key, const QString &value = {}) const;

    /// The localization that it was opened for, whether or not it has a table for it.
    const QString &requestedLocalization() const { return m_requested; }
    /// The localization in use, as the only entry; empty when no table is loaded.
    QStringList preferredLocalizations() const;

    /// Absolute path of a resource, nil when the bundle has none of that name.
    std::optional<QString> pathForResource(const QString &name, const QString &extension) const;
    std::optional<QString> pathForImageResource(const QString &name) const { return pathForResource(name, "png"); }

private:
    Bundle(QString path, Info info);
    static Or<Info> readInfo(const QString &path);
    void loadTable(const QString &localization);

    QString m_path;
    Info m_info;
    QString m_requested;
    QString m_localization;
    std::unique_ptr<QTranslator> m_table;
};

} // namespace foundation
