// The application's own remembered values, and the store that keeps them.
#pragma once

#include <QString>

#include <memory>
#include <optional>

class QSettings;

namespace foundation {

class UserDefaults
{
public:
    /// The defaults of the running application, kept under its name.
    static UserDefaults &standard();

    ~UserDefaults();
    UserDefaults(const UserDefaults &) = delete;
    UserDefaults &operator=(const UserDefaults &) = delete;

    /// Keeps everything in `store` from now on. Meant for runs that must not meet the user's own values.
    void useStore(std::unique_ptr<QSettings> store);

    /// nil when nothing is stored under `key`.
    std::optional<QString> objectForKey(const QString &key) const;
    void setObjectForKey(const QString &value, const QString &key);
    void removeObjectForKey(const QString &key);

private:
    UserDefaults();
    QSettings &store() const;

    mutable std::unique_ptr<QSettings> m_store; // made on first use, after the application has its name
};

} // namespace foundation
