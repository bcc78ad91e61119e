// What a face of the dialog sets for the whole process before any panel's code runs.
#pragma once

#include "Foundation/Locale.h"
#include "Foundation/SystemVersion.h"

#include <optional>

namespace host {

struct Environment
{
    QLocale locale = foundation::Locale::current().locale(); // decides between millimetres and inches
    /// The system that panels believe to run on; nil when none answers.
    std::optional<foundation::SystemVersion> system = foundation::SystemVersion();

    void apply() const;
};

/// Nil when the system knows no locale of the name. "C" is one.
std::optional<QLocale> knownLocale(const QString &name);

} // namespace host
