// A text, passcode or password that a PPD takes for an option beside the choices that it lists.
#pragma once

#include "ppd_api.h"

#include <QString>

#include <optional>

namespace printing {

/// What such a text may be. Lengths are in characters; limits of a PPD that no text could keep to are brought within
/// what a job carries.
struct CustomText
{
    enum class Kind { text, passcode, password };

    /// Nil when the option takes none, takes more than one parameter, or leaves no text to be entered. Both are
    /// borrowed, for the call only.
    static std::optional<CustomText> of(ppd_file_t &ppd, const char *option);

    /// Nobody but the driver gets to see it, and nobody keeps it.
    bool isSecret() const { return kind != Kind::text; }
    /// Whether it keeps to the limits, and a job carries it.
    bool allows(const QString &text) const;
    /// The text as a person may see it: dots for a secret, as many for every one.
    QString shown(const QString &text) const;

    Kind kind = Kind::text;
    int least = 0; // of a secret at least 1: without characters it is none
    int most = 0;
};

/// What is marked for the option; empty while nothing is, or the option takes no text.
QString markedText(ppd_file_t &ppd, const char *option);

} // namespace printing
