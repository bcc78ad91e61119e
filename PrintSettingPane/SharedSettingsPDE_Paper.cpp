// How the panels follow the kind of paper.
#include "SharedSettingsPDE.h"

#include <algorithm>
#include <string_view>

// The tables of paper know nothing of Qt, nor of the print settings; the one name that both sides use is compared here.
static_assert(std::ranges::equal(paper::kUserDefinedPaper, std::string_view(printing::kUserDefinedPaper)));

std::optional<QString> SharedSettingsPDE::readPaperName() const
{
    return printing::PMPrintSettingsGetValue(pdePluginCallbackObject->printSettings(), printing::kPaperNameKey);
}

std::optional<std::u16string_view> SharedSettingsPDE::paperNameView() const
{
    if (!set_paperName)
        return std::nullopt;
    const QStringView name(*set_paperName);
    return std::u16string_view(name.utf16(), static_cast<std::size_t>(name.size()));
}

void SharedSettingsPDE::paperSize_Adjust()
{
    set_paperName = readPaperName();
    // Read once: what follows goes by these two even after a selection changes.
    const int formFeed = mFormFeedModePopUp.indexOfSelectedItem();
    const int perforated = mPerforatedPopUp.indexOfSelectedItem();
    const paper::Group group = paperGroup();
    const paper::Availability &rules = paper::availability(group);
    for (int i = 0; i < std::ssize(rules.formFeed); ++i)
        formFeedItem(i).setEnabled(paper::holds(rules.formFeed[static_cast<std::size_t>(i)], formFeed, perforated));
    for (int i = 0; i < std::ssize(rules.perforated); ++i)
        perforatedItem(i).setEnabled(paper::holds(rules.perforated[static_cast<std::size_t>(i)], formFeed, perforated));
    adjustToPaper(rules, group, formFeed, perforated);
}

void SharedSettingsPDE::selectItem_Adjust()
{
    const int formFeed = mFormFeedModePopUp.indexOfSelectedItem();
    const int perforated = mPerforatedPopUp.indexOfSelectedItem();
    const paper::Group group = paperGroup();
    const paper::Correction &correction = paper::correction(group);
    if (paper::holds(correction.wrong, formFeed)) {
        mFormFeedModePopUp.selectItemAtIndex(correction.formFeed);
        if (correction.enables == paper::Correction::Item::PF1)
            perforatedItem(1).setEnabled(true);
    }
    if (correction.clears == paper::Correction::Item::PF1 && perforated == 1)
        mPerforatedPopUp.selectItemAtIndex(0);
    adjustAfterSelection(group, formFeed);
}

void SharedSettingsPDE::saveSetting_PaperSize()
{
    set_paperName = readPaperName();
    pdePluginCallbackObject->willChangePPDOptionKeyValue("QnPaperSizeType", paper::availability(paperGroup()).sizeType);
}

bool SharedSettingsPDE::validateMenuItem(const toolkit::MenuItem &item)
{
    using enum paper::MenuStep::Verb;
    set_paperName = readPaperName();
    for (const paper::MenuStep &step : paper::menuSteps(paperGroup())) {
        if (!paper::holds(step.condition, mFormFeedModePopUp.indexOfSelectedItem(),
                          mPerforatedPopUp.indexOfSelectedItem()))
            continue;
        const bool inFormFeed = step.menu == paper::MenuStep::Menu::formFeed;
        const toolkit::MenuItem named = inFormFeed ? formFeedItem(step.item) : perforatedItem(step.item);
        if (step.verb == disable)
            named.setEnabled(false);
        else if (named && named == item)
            return false;
    }
    return true;
}
