// How the user measures.
#pragma once

#include <QLocale>

namespace foundation {

class Locale
{
public:
    static Locale &current();

    void set(const QLocale &locale) { m_locale = locale; }
    const QLocale &locale() const { return m_locale; }

    /// False only where the locale measures in US units.
    bool usesMetricSystem() const { return m_locale.measurementSystem() != QLocale::ImperialUSSystem; }

private:
    QLocale m_locale = QLocale::system();
};

/// Another locale while this lives, then the earlier one again.
class ScopedLocale
{
public:
    explicit ScopedLocale(const QLocale &locale) { Locale::current().set(locale); }
    ~ScopedLocale() { Locale::current().set(m_earlier); }
    ScopedLocale(const ScopedLocale &) = delete;
    ScopedLocale &operator=(const ScopedLocale &) = delete;

private:
    QLocale m_earlier = Locale::current().locale(); // made before the constructor sets the new one
};

/// The system's metric setting.
inline bool IsMetric() { return Locale::current().usesMetricSystem(); }

} // namespace foundation
