// Basic panel, group QNKVPS_IBAction: what the controls do when a person uses them.
#include "PrintSettingPDE.h"

#include "FeedUnits.h"
#include "PerforatedMemo.h"

#include "Foundation/Locale.h"

void PrintSettingPDE_v100_::changeDensity()
{
    pick(OptionId::density, mDensityPopUp.indexOfSelectedItem(), kPDEItem_Density);
}

void PrintSettingPDE_v100_::changeMedia() { pick(OptionId::media, mMediaPopUp.indexOfSelectedItem(), kPDEItem_Media); }

void PrintSettingPDE_v100_::changeRollPrint()
{
    pick(OptionId::rollPrint, mRollPrintPopUp.indexOfSelectedItem(), kPDEItem_RollPrint);
}

void PrintSettingPDE_v100_::changeFormFeedMode()
{
    const int mode = mFormFeedModePopUp.indexOfSelectedItem();
    pick(OptionId::formFeedMode, mode, kPDEItem_FormFeedMode);

    // On the screen only: the perforated choice reaches the PPD when it is saved or picked.
    if (paper::isRollOrUserDefined(paperNameView()) && mode == 1) {
        perforatedMemo::store("YES");
        perforatedItem(0).setEnabled(true);
        perforatedItem(1).setEnabled(true);
    } else {
        perforatedMemo::store("NO");
        switchPerforatedOff();
    }

    setPaperFeedEntry(mode == 0 ? Entry::enabled : Entry::disabled);
    if (mode != 0)
        mPaperFeedTxt.becomeFirstResponder();
}

void PrintSettingPDE_v100_::switchPerforatedOff()
{
    mPerforatedPopUp.selectItemAtIndex(0);
    perforatedItem(0).setEnabled(true);
    perforatedItem(1).setEnabled(false);
}

void PrintSettingPDE_v100_::changePerforated()
{
    const int perforated = mPerforatedPopUp.indexOfSelectedItem();
    if (paper::isRollOrUserDefined(paperNameView()) && perforated == 1) { // on the screen only; item 3 keeps its state
        formFeedItem(0).setEnabled(false);
        formFeedItem(2).setEnabled(false);
        mFormFeedModePopUp.selectItemAtIndex(1);
    }
    pick(OptionId::perforated, perforated, kPDEItem_Perforated);
}

void PrintSettingPDE_v100_::changePaperFeed()
{
    // Sets the text to itself and no more, on purpose: alerts and checks of the range are the entry's matter.
    if (mPaperFeedTxt.doubleValue() > paper::feedUnit(foundation::IsMetric()).largest)
        mPaperFeedTxt.setStringValue(mPaperFeedTxt.stringValue().value_or(QString()));
}
