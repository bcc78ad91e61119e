// Which kind of entry an option has.
#include "CustomEntry.h"

#include "CustomAmount.h"
#include "EnteredText.h"

#include "Foundation/Bundle.h"

std::unique_ptr<CustomEntry> CustomEntry::of(ppd_file_t &ppd, const ppd_option_t &option,
                                             const foundation::Bundle &bundle)
{
    if (auto amount = CustomAmount::of(ppd, option, bundle))
        return amount;
    return EnteredText::of(ppd, option, bundle);
}

QString CustomEntry::localized(const char *text) const { return m_bundle.localizedString(text); }
