// Values that no PPD lists: a number or a text for a custom option, a size for a custom paper.
#pragma once

#include "OptionValues.h"

#include "Printing/PrintSettings.h"

#include <QString>

#include <optional>

namespace host {

/// Digits with an optional sign and full stop: what an amount may look like, whatever the locale.
bool isPlainDecimal(const QString &text);

class CustomValue
{
public:
    /// `bare`: without the prefix that marks it as custom, such as "1.5" or "100x200mm".
    explicit CustomValue(QString bare)
        : m_bare(std::move(bare))
    {}
    explicit CustomValue(const printing::Paper &size);

    /// Of "Custom.1.5"; nil for what is not written so.
    static std::optional<CustomValue> fromText(const QString &text);

    const QString &bare() const { return m_bare; }
    /// "Custom.1.5", as jobs, saved options and command lines have it, digit for digit as it was asked for.
    QString text() const;
    /// The same with a number in its shortest form, as a person reads it.
    QString shortText() const;

    /// Nil when the value is no plain decimal number.
    std::optional<double> number() const;
    /// In points; nil when the value is no size.
    std::optional<printing::Paper> size() const;

    /// Whether both mean the same: a number may be written in more than one way.
    friend bool isSameValue(const CustomValue &one, const CustomValue &other);

private:
    QString m_bare;
};

/// What an option is marked with, or is to be marked with.
struct ChoiceValue
{
    ChoiceValue(QString listed = {}, std::optional<CustomValue> value = std::nullopt)
        : keyword(std::move(listed))
        , custom(std::move(value))
    {}

    QString keyword; // of a listed choice; "Custom" for a custom value
    std::optional<CustomValue> custom;

    static ChoiceValue ofCustom(CustomValue value);
    /// A text of the form of a custom value is one; every other text is the keyword of a choice.
    static ChoiceValue fromText(const QString &text);

    QString text() const { return custom ? custom->text() : keyword; }
};

/// The same options for whoever keeps them: of those named in `secrets`, only that a custom value was marked.
OptionValues withoutSecrets(OptionValues options, const QStringList &secrets);

/// Whether two texts of saved options mean the same choice or value.
bool isSameChoice(const QString &one, const QString &other);

inline constexpr auto kCustomChoice = "Custom";

} // namespace host
