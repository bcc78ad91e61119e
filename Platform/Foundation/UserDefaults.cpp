// User defaults over QSettings.
#include "UserDefaults.h"

#include <QFileInfo>
#include <QSettings>

#include <utility>

namespace foundation {

namespace {

constexpr auto kNowhere = "/proc/none/qnprint.conf"; // nothing is read there, and nothing can be kept

/// Reading what is no file might never end.
std::unique_ptr<QSettings> ownStore()
{
    auto store = std::make_unique<QSettings>();
    const QFileInfo file(store->fileName());
    if (!file.exists() || file.isFile())
        return store;
    return std::make_unique<QSettings>(kNowhere, QSettings::IniFormat);
}

} // namespace

UserDefaults &UserDefaults::standard()
{
    static UserDefaults defaults;
    return defaults;
}

UserDefaults::UserDefaults() = default;
UserDefaults::~UserDefaults() = default;

std::unique_ptr<QSettings> UserDefaults::useStore(std::unique_ptr<QSettings> store)
{
    return std::exchange(m_store, std::move(store));
}

QSettings &UserDefaults::store() const
{
    if (!m_store)
        m_store = ownStore();
    return *m_store;
}

std::optional<QString> UserDefaults::objectForKey(const QString &key) const
{
    const QVariant value = store().value(key);
    return value.isValid() ? std::optional(value.toString()) : std::nullopt;
}

void UserDefaults::setObjectForKey(const QString &value, const QString &key) { store().setValue(key, value); }

void UserDefaults::removeObjectForKey(const QString &key) { store().remove(key); }

ScopedDefaults::ScopedDefaults(const QString &path)
    : m_earlier(UserDefaults::standard().useStore(std::make_unique<QSettings>(path, QSettings::IniFormat)))
{}

ScopedDefaults::~ScopedDefaults() { UserDefaults::standard().useStore(std::move(m_earlier)); }

} // namespace foundation
