// What a face of the dialog sets for the whole process.
#include "Environment.h"

namespace host {

void Environment::apply() const
{
    foundation::Locale::current().set(locale);
    foundation::setSystemVersion(system);
}

std::optional<QLocale> knownLocale(const QString &name)
{
    const QLocale locale(name);
    return locale == QLocale::c() && name != "C" ? std::nullopt : std::optional(locale);
}

} // namespace host
