// What panels ask of a PPD: attributes, texts, choice lists, and the few string helpers that go with them.
#pragma once

#include "PDEChoice.h"

#include "Toolkit/Handles.h"

/// A null PPD, option or choice is one in which nothing is found.
class PDEUtilsMethod
{
public:
    PDEUtilsMethod() = delete;

    static bool runningOn105OrLater() { return true; }

    /// The value of the first attribute of that name, in the system's encoding; nil when there is none.
    static std::optional<QString> ppdAttrValStr(ppd_file_t *ppd, const char *cStrKey);
    /// The option's text, in the system's encoding; nil when the PPD lacks the option.
    static std::optional<QString> ppdOptionTextStr(ppd_file_t *ppd, const char *cStrKey);

    /// Whether a hidden flag says "False", exactly. Anything else, a missing flag too, hides the control.
    static bool isSupportedItem(ppd_file_t *ppd, const char *cStrKey);
    /// Where a placement attribute puts its control, in points; the zero point when it is missing or empty.
    static QPointF originItem(ppd_file_t *ppd, const char *cStrKey);

    /// nil for null; an empty list for an option without choices.
    static std::optional<ChoiceList> arrayFromPPDOption(ppd_option_t *option);
    /// The first choice with that keyword, or, for nil, the first default choice; null when none matches.
    static const PDEChoice *findChoiceForString(const std::optional<QString> &string, const ChoiceList &choices);

    /// Texts as UTF-8, whatever the system's encoding is; nil when they are not.
    static std::optional<QString> createOptionTitle(const ppd_option_t *option);
    static std::optional<QString> createChoiceTitle(const ppd_choice_t *choice);

    /// Gives a label the colour of an enabled or a disabled control; leaves controls without a text colour alone.
    static void setEnabledForText(bool enabled, toolkit::View &item);

    // PDEUtils_String

    /// Bytes of the text in the system's encoding, else in the first available one that has all its characters.
    static int stringLengthConvertedToEncoding(const std::optional<QString> &string);
    static bool scanString(const QString &string, const QString &intoString);
    /// A copy of `string` without the first `intoString`; nil when it does not occur.
    static std::optional<QString> deleteString(const QString &string, const QString &intoString);
};
