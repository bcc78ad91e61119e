// An amount that a PPD takes beside the choices that it lists.
#pragma once

#include "CustomEntry.h"

/// A number within a range. A length in points shows in millimetres, or in inches where these are in use; no other
/// amount has a unit that a PPD would tell.
class CustomAmount final : public CustomEntry
{
public:
    /// Null when the option takes no custom value, or one that is not a single number.
    static std::unique_ptr<CustomAmount> of(ppd_file_t &ppd, const ppd_option_t &option,
                                            const foundation::Bundle &bundle);

    QString hint() const override;
    QString limits() const override;
    QString refusal() const override;
    QString current() const override;
    QString currentForAll() const override;
    int widthOfField() const override;
    std::optional<QString> valueOf(const QString &text) const override;
    std::optional<QString> firstValue() const override;

private:
    CustomAmount(const ppd_cparam_t &parameter, const foundation::Bundle &bundle)
        : CustomEntry(bundle)
        , m_parameter(&parameter)
    {}
    /// "mm", "in" or empty.
    QString unit() const;
    /// "5 to 30", as they are shown.
    QString range() const;
    QString smallest() const;
    QString largest() const;
    double number(const ppd_cplimit_t &limit) const;
    double currentNumber() const;
    int decimals() const;
    QString shown(double number) const;
    bool isLength() const { return m_parameter->type == PPD_CUSTOM_POINTS; }
    double scale() const;

    const ppd_cparam_t *m_parameter;
};
