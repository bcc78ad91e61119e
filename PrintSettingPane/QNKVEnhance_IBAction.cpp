// Advanced panel, group Enhance_IBAction: what the controls do when a person uses them.
#include "PrintSettingAdvancedPDE.h"

void PrintSettingAdvancedPDE_v100_::changeDensity(QWidget *)
{
    pick(OptionId::density, mDensityPopUp.indexOfSelectedItem(), kPDEItem_Density);
}

void PrintSettingAdvancedPDE_v100_::changeSpeed(QWidget *)
{
    pick(OptionId::speed, mSpeedPopUp.indexOfSelectedItem(), optionRow(OptionId::speed).mask);
}

void PrintSettingAdvancedPDE_v100_::changeHalftone(QWidget *)
{
    if (mHalftoneView)
        mHalftoneView->setNeedsDisplay(); // before the host is asked: the preview goes by the radio group alone
    pick(OptionId::halftone, mHalftoneRadio.selectedRow(), kPDEItem_Halftone);
}

void PrintSettingAdvancedPDE_v100_::changeOption(QWidget *sender)
{
    for (const OptionId id : {OptionId::reversal, OptionId::mirror, OptionId::biDiPrint, OptionId::perforated}) {
        const toolkit::CheckBox &box = *checkBoxOf(id);
        if (sender && sender == box.widget())
            return pick(id, box.state(), optionRow(id).mask);
    }
}
