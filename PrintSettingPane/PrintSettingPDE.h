// The basic panel: media, form-feed mode, perforated paper, paper feed amount, roll printer case and density.
#pragma once

#include "SharedSettingsPDE.h"

class PrintSettingPDE_v100_ final : public SharedSettingsPDE
{
public:
    PrintSettingPDE_v100_();

    QString identifier() const override { return "basic"; }
    bool shouldPrint() override;

private:
    // What is the basic panel's own (PrintSettingPDE.cpp).
    std::vector<Selection> selections() const override;
    std::optional<OptionFields> fieldsOf(OptionId id) override;
    toolkit::PopUpButton *popUpOf(OptionId id) override;
    bool claims(OptionId) const override { return true; }
    std::span<const PDEItemFlags> refreshOrder() const override;
    bool isPaperFeedEnabled() const override { return mPaperFeedTxt.isEnabled(); }
    void awakeFromNib() override;
    void setValuesToKey() override;
    void performAction(const QString &name, QWidget *sender) override;
    bool isPaperSizeOutOfSizeRange() const;
    void showPaperSizeOutOfSizeRangeAlert() const;

    // QNKVPS_initialize and QNKVPS_Save (QNKVPS_InitSave.cpp).
    void initializeOptions() override;
    void saveOptions() override;
    void finishFirstDisplay() override;
    void initializeUI_OtherStr();
    void initializeUI_Density(); // without a caller; kept for the name, as is saveSetting_Density
    void initializeUI_Media();
    void initializeUI_FormFeedMode();
    void initializeUI_RollPrint();
    void initializeUI_PaperFeed();
    void initializeUI_Perforated();
    void saveSetting_Density();
    void saveSetting_Media();
    void saveSetting_FormFeedMode();
    void saveSetting_RollPrint();
    void saveSetting_PaperFeed();
    void saveSetting_Perforated();
    void adjustToPaper(const paper::Availability &rules, paper::Group group, int formFeed, int perforated) override;
    void adjustAfterSelection(paper::Group group, int formFeedAtEntry) override;

    // QNKVPS_IBAction (QNKVPS_IBAction.cpp).
    void changeDensity();
    void changeMedia();
    void changeFormFeedMode();
    void changeRollPrint();
    void changePerforated();
    void changePaperFeed();
    void switchPerforatedOff();

    // The amount entry (PrintSettingPDE_FeedEntry.cpp).
    enum class Entry { disabled, enabled };
    void setPaperFeedEntry(Entry state);
    void controlTextDidChange(QWidget *field) override;
    void controlTextDidEndEditing(QWidget *field) override;
    QString filterPaperfeedData(const QString &text) const;
    bool limitTypedText(const QString &text);
    void StepperClick();
    void stepMillimetres(const QString &text, double stepped);
    void stepInches(const QString &text, double stepped);
    bool isUnusableForStepping(const QString &text, double largest) const;
    void showTextAndStepper(const QString &text);
    void showNumberAndStepper(double value);
    void showAlert() const;
    bool shouldShowAlert() const;
    bool isInMillimetres() const;

    toolkit::TextField mMetricSystemStr; // "mm" or "inch": the panel's record of the unit
    toolkit::TextField mPaperFeedTxt;
    toolkit::Stepper mPaperFeedStepper;
    toolkit::TextField mRollPrintStr;
    toolkit::PopUpButton mRollPrintPopUp;
    toolkit::CheckBox mRollPrintChkBx;

    std::optional<ChoiceList> mRollPrint_Choices;
    ppd_option_t *mRollPrint_Option = nullptr;
    const PDEChoice *mRollPrint_Selection = nullptr;

    double mPaperFeedinteger = 0; // the amount as last typed, in whole millimetres
    double inch = 0;              // the amount as last typed, in inches
    double kPaperFeedMin = 0;     // limits in the unit shown; 0 without a custom parameter
    double kPaperFeedMax = 0;
};
