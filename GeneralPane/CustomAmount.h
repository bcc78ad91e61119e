// An amount that a PPD takes beside the choices that it lists.
#pragma once

#include "Printing/ppd_api.h"

#include <QString>

#include <optional>

/// A number within a range. A length in points shows in millimetres, or in inches where these are in use; no other
/// amount has a unit that a PPD would tell.
class CustomAmount
{
public:
    /// Nil when the option takes no custom value, or one that is not a single number. The PPD has to outlive it.
    static std::optional<CustomAmount> of(ppd_file_t &ppd, const ppd_option_t &option);

    /// "mm", "in" or empty.
    QString unit() const;
    // As they are shown, without the unit.
    QString smallest() const;
    QString largest() const;
    /// What is marked now; meaningless while no custom value is.
    QString current() const;

    /// What to mark for a text that a person has written; nil when it is no amount within the range.
    std::optional<QString> valueOf(const QString &text) const;
    /// What to mark at first: what was there last, else the smallest.
    QString firstValue() const;

private:
    explicit CustomAmount(const ppd_cparam_t &parameter)
        : m_parameter(&parameter)
    {}
    double number(const ppd_cplimit_t &limit) const;
    double currentNumber() const;
    int decimals() const;
    QString shown(double number) const;
    bool isLength() const { return m_parameter->type == PPD_CUSTOM_POINTS; }
    double scale() const;

    const ppd_cparam_t *m_parameter;
};
