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

/// The system's metric setting.
inline bool IsMetric() { return Locale::current().usesMetricSystem(); }

} // namespace foundation
