// A text, passcode or password that a PPD takes beside the choices that it lists.
#pragma once

#include "CustomEntry.h"

#include "Printing/CustomText.h"

class EnteredText final : public CustomEntry
{
public:
    /// Null when the option takes none.
    static std::unique_ptr<EnteredText> of(ppd_file_t &ppd, const ppd_option_t &option,
                                           const foundation::Bundle &bundle);

    QString hint() const override { return limits(); }
    QString limits() const override;
    QString refusal() const override;
    QString current() const override;
    QString currentForAll() const override { return m_allowed.shown(current()); }
    bool isSecret() const override { return m_allowed.isSecret(); }
    int widthOfField() const override;
    std::optional<QString> valueOf(const QString &text) const override;
    std::optional<QString> firstValue() const override { return valueOf(current()); }

private:
    EnteredText(const printing::CustomText &allowed, ppd_file_t &ppd, const ppd_option_t &option,
                const foundation::Bundle &bundle);
    QString length() const;

    printing::CustomText m_allowed;
    ppd_file_t &m_ppd;
    const ppd_option_t &m_option;
};
