// The advanced panel: halftone with its preview, density, speed, and the check boxes.
#pragma once

#include "SharedSettingsPDE.h"

class PrintSettingAdvancedPDE_v100_ final : public SharedSettingsPDE
{
public:
    PrintSettingAdvancedPDE_v100_();
    ~PrintSettingAdvancedPDE_v100_() override;

    QString identifier() const override { return "advanced"; }
    QWidget *panelView() override;
    QString panelName() override;
    bool shouldPrint() override;

private:
    // What is the advanced panel's own (PrintSettingAdvancedPDE.cpp).
    bool isInterfaceLoaded() const override { return kAdvPDEView; }
    toolkit::PopUpButton *popUpOf(OptionId id) override;
    toolkit::CheckBox *checkBoxOf(OptionId id) override;
    bool claims(OptionId id) const override;
    std::span<const PDEItemFlags> refreshOrder() const override;
    bool isPaperFeedEnabled() const override { return mPaperFeedPopUp.isEnabled(); }
    void awakeFromNib() override;
    void setValuesToKey() override;
    void performAction(const QString &name, QWidget *sender) override;

    // Enhance_initialize and Enhance_Save (QNKVEnhance__InitSave.cpp).
    void initializeOptions() override;
    void saveOptions() override;
    void initializeUI_OtherStr() {}
    void initializeUI_Density();
    void initializeUI_Speed();
    void initializeUI_Halftone();
    void initializeUI_Option();
    void initializeUI_BiDiPrint();
    void initializeCheckBox(OptionId id, toolkit::CheckBox &box, const char *fallbackKey);
    void saveSetting_Halftone();
    void saveSetting_Reversal();
    void saveSetting_Perforated();
    void saveSetting_Mirror();
    void saveSetting_BiDiPrint();
    void saveSetting_Density();
    void saveSetting_Speed();
    void saveCheckBox(OptionId id, const toolkit::CheckBox &box);
    void adjustToPaper(const paper::Availability &rules, paper::Group group, int formFeed, int perforated) override;
    void adjustAfterSelection(paper::Group group, int formFeedAtEntry) override;
    static bool memoAllowsPerforated();

    // Enhance_IBAction (QNKVEnhance_IBAction.cpp).
    void changeHalftone(QWidget *sender);
    void changeOption(QWidget *sender);
    void changeDensity(QWidget *sender);
    void changeSpeed(QWidget *sender);

    toolkit::TextField mSpeedStr;
    toolkit::PopUpButton mSpeedPopUp;
    toolkit::CheckBox mPerforatedChkBx;
};
