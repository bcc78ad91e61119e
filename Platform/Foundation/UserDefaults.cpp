// User defaults over QSettings.
#include "UserDefaults.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

#include <utility>

namespace foundation {

namespace {

constexpr auto kNowhere = "/proc/none/qnprint.conf"; // nothing is read there, and nothing can be kept

/// Reading what is no file might never end.
std::unique_ptr<QSettings> ownStore()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + '/';
    const QString organization = QCoreApplication::organizationName();
    for (const QString &name : {organization, organization + '/' + QCoreApplication::applicationName()}) {
        const QFileInfo file(folder + name + ".conf");
        if (file.exists() && !file.isFile())
            return std::make_unique<QSettings>(kNowhere, QSettings::IniFormat);
    }
    return std::make_unique<QSettings>();
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
