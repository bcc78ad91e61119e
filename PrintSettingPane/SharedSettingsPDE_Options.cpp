// One option at a time: building its control from the PPD, writing the control back, reacting to the user; and where
// the controls stand.
#include "SharedSettingsPDE.h"

#include <algorithm>

using toolkit::PopUpButton;
using toolkit::TextField;

void SharedSettingsPDE::placeGroup(bool present, std::initializer_list<Placement> controls)
{
    for (const auto &[originKey, control] : controls) {
        if (present && originKey)
            control->setFrameOrigin(PDEUtilsMethod::originItem(ppd, originKey));
        control->setHidden(!present);
    }
}

void SharedSettingsPDE::placeHalftoneView()
{
    mHalftoneView = new HalftoneView_v100_;
    if (!mHalftoneView->initWithFrame(mHalftoneDummyView.frame(), *nsPDEBundle)) {
        delete mHalftoneView;
        return;
    }
    toolkit::replaceSubview(mHalftoneDummyView, mHalftoneView);
    mHalftoneView->setHlftnMatrix(mHalftoneRadio);
}

void SharedSettingsPDE::placeOptionGroup(const char *titleOriginKey, const char *reversalOriginKey)
{
    const bool reversal = isPresent(OptionId::reversal);
    const bool mirror = isPresent(OptionId::mirror);
    const bool biDiPrint = isPresent(OptionId::biDiPrint);

    placeGroup(mirror || reversal, {{titleOriginKey, &mOptionTitle}});
    if (!mirror && !reversal)
        mSeparateLineBI.removeFromSuperview();
    placeGroup(reversal, {{reversalOriginKey, &mReversalChkBx}});
    placeGroup(mirror && !withholdsMirror(), {{"QnMirrorChkBtnOrigin", &mMirrorChkBx}});
    placeGroup(biDiPrint, {{"QnBiDiPrintChkBtnOrigin", &mBiDiPrintChkBx}});
    if (!biDiPrint)
        mSeparateLineBI.removeFromSuperview();
    if (!mirror && !reversal && !biDiPrint)
        mSeparateLineOP.removeFromSuperview();
}

QString SharedSettingsPDE::labelText(const char *keyword, const char *fallbackKey) const
{
    const auto title = PDEUtilsMethod::createOptionTitle(ppdFindOption(ppd, keyword));
    return title ? localized(*title + " : ") : localized(fallbackKey);
}

QString SharedSettingsPDE::plainTitle(const char *keyword, const char *fallbackKey) const
{
    return localized(PDEUtilsMethod::createOptionTitle(ppdFindOption(ppd, keyword)).value_or(fallbackKey));
}

void SharedSettingsPDE::initializePopUp(OptionId id, TextField &label, PopUpButton &popUp)
{
    const auto fields = fieldsOf(id);
    if (!fields || !fields->choices)
        return;
    const char *const keyword = optionRow(id).keyword;
    const PopUpTexts &texts = popUpTexts(id);
    const bool enabled = PDEUtilsMethod::isSupportedItem(ppd, texts.hiddenKey);
    PDEUtilsMethod::setEnabledForText(enabled, label);
    label.setStringValue(labelText(keyword, texts.titleKey));
    popUp.setEnabled(enabled);

    for (int i = 0; i < std::ssize(*fields->choices); ++i) {
        const auto title = PDEUtilsMethod::createChoiceTitle(&fields->option->choices[i]);
        if (title) {
            popUp.removeItemAtIndex(i);
            popUp.insertItemWithTitle(localized(*title), i);
            continue;
        }
        // A choice without a title brings the whole fixed list to the front, each time, and removes nothing. Kept so:
        // the index of every later choice counts on what stands there by then.
        for (std::size_t item = 0; item < texts.itemKeys.size(); ++item)
            popUp.insertItemWithTitle(localized(texts.itemKeys[item]), static_cast<int>(item));
    }
    const auto standard = std::ranges::find_if(*fields->choices, &PDEChoice::isDefaultChoice);
    if (standard != fields->choices->end())
        popUp.selectItemAtIndex(static_cast<int>(standard - fields->choices->begin()));
}

void SharedSettingsPDE::writeOption(const OptionFields &fields, std::int64_t index)
{
    if (!fields.option || !fields.choices || fields.choices->empty())
        return;
    const std::int64_t last = std::ssize(*fields.choices) - 1;
    const PDEChoice &choice = (*fields.choices)[static_cast<std::size_t>(std::clamp<std::int64_t>(index, 0, last))];
    const auto key = foundation::stringFromBytes(fields.option->keyword, foundation::StringEncoding::utf8);
    const auto name = foundation::stringFromBytes(choice.choice()->choice, foundation::StringEncoding::utf8);
    if (key && name)
        pdePluginCallbackObject->willChangePPDOptionKeyValue(*key, *name);
}

void SharedSettingsPDE::saveOption(OptionId id, std::optional<int> shown)
{
    const auto fields = fieldsOf(id);
    if (!fields || !printSettings)
        return;
    std::int64_t index = shown ? *shown : indexOfMarkedOption(fields->choices, optionRow(id).keyword);
    if (!shown && index == -1)
        index = indexOfDefaultOption(fields->choices);
    writeOption(*fields, index);
}

void SharedSettingsPDE::savePopUp(OptionId id, const PopUpButton &popUp)
{
    saveOption(id, popUp ? std::optional(popUp.indexOfSelectedItem()) : std::nullopt);
}

void SharedSettingsPDE::savePopUpOfPaper(OptionId id, const PopUpButton &popUp)
{
    saveOption(id, popUp ? popUp.indexOfSelectedItem() : paper::formFeedWithoutMenu(paperGroup()));
}

void SharedSettingsPDE::pick(OptionId id, int index, PDEItemFlags flags)
{
    // An index of -1 is beyond every list once it is unsigned: nothing is marked.
    selectionForItem(static_cast<std::uint64_t>(index), optionRow(id).keyword, fieldsOf(id)->choices, flags);
    updateUIItem(flags);
}
