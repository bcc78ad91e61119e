// The summary of a panel's settings.
#include "SharedSettingsPDE.h"

namespace {

void addIfNotEmpty(PDESummary &summary, const QString &title, const std::optional<QString> &value)
{
    if (!value || value->isEmpty())
        return;
    summary.displayOrder.append(title);
    summary.values.insert(title, *value);
}

} // namespace

std::optional<PDESummary> SharedSettingsPDE::summaryInfo()
{
    PDESummary summary;
    addIfNotEmpty(summary, localized("RS_STitle_Model"), PDEUtilsMethod::ppdAttrValStr(ppd, "ModelName"));
    addIfNotEmpty(summary, localized("RS_STitle_Version"), fileVerString());
    for (const SummaryRow &row : kSummaryRows) {
        const auto fields = fieldsOf(row.id);
        if (fields && fields->selection && isInSummary(row))
            addToSummary(summary, row, *fields);
    }
    // The order is stored last and wins over an entry that happens to have its title. It holds every title in the order
    // of adding, empty ones and equal ones included.
    summary.values.remove(kPDESummaryDisplayOrder);
    return summary;
}

bool SharedSettingsPDE::isInSummary(const SummaryRow &row)
{
    switch (row.condition) {
    case SummaryIf::always: return true;
    case SummaryIf::paperFeedEnabled: return isPaperFeedEnabled();
    case SummaryIf::mirrorOffered: return !withholdsMirror();
    case SummaryIf::biDiPrintOffered: return usb_dec && PDEUtilsMethod::isSupportedItem(ppd, "QnBiDiPrintObjHidden");
    }
    return false;
}

void SharedSettingsPDE::addToSummary(PDESummary &summary, const SummaryRow &row, const OptionFields &fields)
{
    const QString title = plainTitle(optionRow(row.id).keyword, row.titleKey);
    summary.displayOrder.append(title);
    auto value = summaryValue(row, fields);
    if (value && row.id == OptionId::halftone) // titles of halftone rows may break into two lines; a summary does not
        value = PDEUtilsMethod::deleteString(*value, "\n").value_or(*value);
    if (value)
        summary.values.insert(title, *value);
}

std::optional<QString> SharedSettingsPDE::summaryValue(const SummaryRow &row, const OptionFields &fields) const
{
    const auto index = indexOfMarkedOption(fields.choices, optionRow(row.id).keyword);
    if (index < 0 || index >= std::ssize(row.keys))
        return fields.selection->userTitle();
    const char *const key = row.keys[static_cast<std::size_t>(index)];
    if (row.value == SummaryValue::fixedKeys || !fields.option || index >= fields.option->num_choices)
        return localized(key);
    return choiceName(fields.option->choices[index], key);
}

QString SharedSettingsPDE::choiceName(const ppd_choice_t &choice, const char *fallbackKey) const
{
    return localized(PDEUtilsMethod::createChoiceTitle(&choice).value_or(fallbackKey));
}
