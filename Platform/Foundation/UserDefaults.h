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

    /// Keeps everything in `store` from now on, null being the user's own, and answers the earlier store.
    std::unique_ptr<QSettings> useStore(std::unique_ptr<QSettings> store);

    /// nil when nothing is stored under `key`.
    std::optional<QString> objectForKey(const QString &key) const;
    void setObjectForKey(const QString &value, const QString &key);
    void removeObjectForKey(const QString &key);

private:
    UserDefaults();
    QSettings &store() const;

    mutable std::unique_ptr<QSettings> m_store; // made on first use, after the application has its name
};

/// Keeps the standard defaults in a file while this lives, for runs that must not meet the user's own values; then the
/// earlier store counts again.
class ScopedDefaults
{
public:
    explicit ScopedDefaults(const QString &path);
    ~ScopedDefaults();
    ScopedDefaults(const ScopedDefaults &) = delete;
    ScopedDefaults &operator=(const ScopedDefaults &) = delete;

private:
    std::unique_ptr<QSettings> m_earlier;
};

} // namespace foundation
