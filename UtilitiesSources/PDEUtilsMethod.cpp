// What panels ask of a PPD.
#include "PDEUtilsMethod.h"

#include <algorithm>

using foundation::StringEncoding;
using foundation::stringFromBytes;

std::optional<QString> PDEUtilsMethod::ppdAttrValStr(ppd_file_t *ppd, const char *cStrKey)
{
    const ppd_attr_t *attribute = ppd ? ppdFindAttr(ppd, cStrKey, nullptr) : nullptr;
    return attribute ? stringFromBytes(attribute->value, foundation::systemEncoding()) : std::nullopt;
}

std::optional<QString> PDEUtilsMethod::ppdOptionTextStr(ppd_file_t *ppd, const char *cStrKey)
{
    const ppd_option_t *option = ppd ? ppdFindOption(ppd, cStrKey) : nullptr;
    return option ? stringFromBytes(option->text, foundation::systemEncoding()) : std::nullopt;
}

bool PDEUtilsMethod::isSupportedItem(ppd_file_t *ppd, const char *cStrKey)
{
    return ppdAttrValStr(ppd, cStrKey) == "False";
}

QPointF PDEUtilsMethod::originItem(ppd_file_t *ppd, const char *cStrKey)
{
    return foundation::pointFromString(ppdAttrValStr(ppd, cStrKey).value_or(QString()));
}

std::optional<ChoiceList> PDEUtilsMethod::arrayFromPPDOption(ppd_option_t *option)
{
    if (!option)
        return std::nullopt;
    ChoiceList choices;
    choices.reserve(static_cast<std::size_t>(option->num_choices));
    for (int i = 0; i < option->num_choices; ++i)
        choices.push_back(PDEChoice::choiceWithChoice(&option->choices[i]));
    return choices;
}

const PDEChoice *PDEUtilsMethod::findChoiceForString(const std::optional<QString> &string, const ChoiceList &choices)
{
    const auto found = std::ranges::find_if(choices, [&](const PDEChoice &choice) {
        return string ? choice.ppdTitle() == string : choice.isDefaultChoice();
    });
    return found == choices.end() ? nullptr : &*found;
}

std::optional<QString> PDEUtilsMethod::createOptionTitle(const ppd_option_t *option)
{
    return option ? stringFromBytes(option->text, StringEncoding::utf8) : std::nullopt;
}

std::optional<QString> PDEUtilsMethod::createChoiceTitle(const ppd_choice_t *choice)
{
    return choice ? stringFromBytes(choice->text, StringEncoding::utf8) : std::nullopt;
}

void PDEUtilsMethod::setEnabledForText(bool enabled, toolkit::View &item)
{
    if (auto *text = dynamic_cast<toolkit::TextControl *>(item.widget()))
        text->setTextColor(enabled ? toolkit::TextColor::control : toolkit::TextColor::disabledControl);
}
