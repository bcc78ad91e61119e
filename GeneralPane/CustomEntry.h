// What a person may enter for an option beside the choices that its PPD lists.
#pragma once

#include "Printing/ppd_api.h"

#include <QString>

#include <memory>
#include <optional>

namespace foundation {
class Bundle;
}

class CustomEntry
{
public:
    /// A number, a text, a passcode or a password. Null when the option takes no custom value, one of several
    /// parameters, or one that nothing can be entered for. PPD and bundle, which has the texts, have to outlive it.
    static std::unique_ptr<CustomEntry> of(ppd_file_t &ppd, const ppd_option_t &option,
                                           const foundation::Bundle &bundle);
    virtual ~CustomEntry() = default;
    CustomEntry(const CustomEntry &) = delete;
    CustomEntry &operator=(const CustomEntry &) = delete;

    /// What stands behind the field: "mm (5 to 30)", "4 to 8 digits".
    virtual QString hint() const = 0;
    /// The same in a sentence: "5 to 30 mm".
    virtual QString limits() const = 0;
    /// The sentence that refuses what is not within them.
    virtual QString refusal() const = 0;

    /// What is marked now, as the field has it; meaningless while no custom value is.
    virtual QString current() const = 0;
    /// The same as anybody may see it, with its unit.
    virtual QString currentForAll() const = 0;
    /// Whether the field hides what is entered.
    virtual bool isSecret() const { return false; }
    /// In points.
    virtual int widthOfField() const = 0;

    /// What to mark for a text that a person has entered; nil when that is not within the limits.
    virtual std::optional<QString> valueOf(const QString &text) const = 0;
    /// What to mark at first: what was there last, else the least that there can be; nil when that is nothing.
    virtual std::optional<QString> firstValue() const = 0;

protected:
    explicit CustomEntry(const foundation::Bundle &bundle)
        : m_bundle(bundle)
    {}
    QString localized(const char *text) const;

private:
    const foundation::Bundle &m_bundle;
};
