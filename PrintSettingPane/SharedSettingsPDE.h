// What the basic and the advanced panel share: their common fields, and one function for each kind of work on an
// option. A panel states only what is its own.
#pragma once

#include "HalftoneView.h"
#include "PanelOptions.h"
#include "PaperRules.h"

class SharedSettingsPDE : public BasePDE_v100_
{
public:
    SharedSettingsPDE();
    ~SharedSettingsPDE() override;

    /// Always succeeds, even over a base that does not: the answer of the base is tested and not adopted.
    bool initWithCallback(PDEPluginCallback_v100_ &callback, const foundation::Bundle &bundle) override;

    std::optional<QStringList> supportedPPDOptionKeys() override;
    std::optional<PDESummary> summaryInfo() override;
    std::optional<PDEPrintEffect> printEffect() override;
    void PPDOptionKeyValueDidChange(const std::optional<QString> &key, const std::optional<QString> &choice) override;

protected:
    /// The fields that a panel keeps for an option.
    struct OptionFields
    {
        ppd_option_t *&option;
        std::optional<ChoiceList> &choices;
        const PDEChoice *&selection;
    };

    // What a panel states.

    /// nil for an option that the panel does not know.
    virtual std::optional<OptionFields> fieldsOf(OptionId id);
    /// The pop-up or check box that a refresh brings in line with the selection; null when it has none.
    virtual toolkit::PopUpButton *popUpOf(OptionId id);
    virtual toolkit::CheckBox *checkBoxOf(OptionId id);
    virtual bool claims(OptionId id) const = 0; // among the supported option keys
    virtual std::span<const PDEItemFlags> refreshOrder() const = 0;
    virtual void saveOptions() = 0;       // the savers of the first display and of the supported keys
    virtual void initializeOptions() = 0; // the initialisers of the first display
    virtual void finishFirstDisplay() {}
    virtual bool isPaperFeedEnabled() const = 0;

    // How the panels differ when the paper is adjusted.
    virtual void adjustToPaper(const paper::Availability &rules, paper::Group group, int formFeed, int perforated) = 0;
    virtual void adjustAfterSelection(paper::Group group, int formFeedAtEntry) = 0;

    // Template operations of the base.
    void initSetTitleTexts() override;
    void initUI() override;
    void setPDEItems() override;
    void setPDEItems2() override;
    void updateUIItem(PDEItemFlags flags) override;
    void updateMarkedSelections(PDEItemFlags flags) override;
    void addObserverSelf() override;
    /// Does nothing on purpose: a hidden panel must still hear of a new paper; the destructor ends it.
    void removeObserverSelf() override {}
    void PMPrintDestinationPaperDidChangeNotification();

    // Layout.
    struct Placement
    {
        const char *originKey; // null: stays where the interface file has it, whatever the PPD says
        toolkit::View *control;
    };
    bool isPresent(OptionId id) { return fieldsOf(id)->choices.has_value(); }
    void placeGroup(bool present, std::initializer_list<Placement> controls);
    void placeHalftoneView();
    void placeOptionGroup(const char *titleOriginKey, const char *reversalOriginKey);

    // One option at a time.
    void initializePopUp(OptionId id, toolkit::TextField &label, toolkit::PopUpButton &popUp);
    QString labelText(const char *keyword, const char *fallbackKey) const;
    QString plainTitle(const char *keyword, const char *fallbackKey) const;
    /// `shown`: the index that the option's control shows; nil when there is no control.
    void saveOption(OptionId id, std::optional<int> shown);
    void savePopUp(OptionId id, const toolkit::PopUpButton &popUp);
    /// The same, but without a menu the paper decides before the marked choice does.
    void savePopUpOfPaper(OptionId id, const toolkit::PopUpButton &popUp);
    void pick(OptionId id, int index, PDEItemFlags flags);

    // Paper.
    std::optional<QString> readPaperName() const;
    std::optional<std::u16string_view> paperNameView() const; // of `set_paperName`, as long as that stays
    paper::Group paperGroup() const { return paper::groupOf(paperNameView()); }
    void paperSize_Adjust();
    void selectItem_Adjust();
    void saveSetting_PaperSize();
    bool validateMenuItem(const toolkit::MenuItem &item) override;
    toolkit::MenuItem formFeedItem(int index) const { return mFormFeedModePopUp.itemAtIndex(index); }
    toolkit::MenuItem perforatedItem(int index) const { return mPerforatedPopUp.itemAtIndex(index); }

    /// The mirror option is withheld from users of system 10.6 and later.
    static bool withholdsMirror();

    /// The amount that is marked, whatever a panel has written into its parameter since.
    float markedInches(const ppd_cparam_t &parameter) const;

    // Inspection and interface file.
    struct ControlField
    {
        const char *name;
        toolkit::View *control;
    };
    std::vector<ControlField> mControlFields; // filled by the constructors
    bool connectField(const QString &name, QWidget *control) override;
    std::vector<Control> controls() const override;
    std::vector<Selection> selections() const override;
    std::optional<QString> paperName() const override { return set_paperName; }

    toolkit::TabView tabView;
    toolkit::TextField versionStr;
    toolkit::TextField mDensityStr, mMediaStr, mFormFeedModeStr, mPaperFeedStr, mPerforatedStr;
    toolkit::PopUpButton mDensityPopUp, mMediaPopUp, mFormFeedModePopUp, mPaperFeedPopUp, mPerforatedPopUp;
    toolkit::View mSeparateLineOP, mSeparateLineBI; // above the option group, above the bi-directional check box
    toolkit::View mHalftoneDummyView;
    toolkit::TextField mHalftoneTitle;
    toolkit::RadioMatrix mHalftoneRadio;
    toolkit::TextField mOptionTitle;
    toolkit::CheckBox mReversalChkBx, mMirrorChkBx, mBiDiPrintChkBx;
    QPointer<HalftoneView_v100_> mHalftoneView;

    std::optional<ChoiceList> mDensity_Choices, mSpeed_Choices, mMedia_Choices, mFormFeedMode_Choices,
        mPaperFeed_Choices, mPerforated_Choices, mHalftone_Choices, mReversal_Choices, mMirror_Choices,
        mBiDiPrint_Choices;
    ppd_option_t *mSpeed_Option = nullptr, *mDensity_Option = nullptr, *mMedia_Option = nullptr,
                 *mFormFeedMode_Option = nullptr, *mPaperFeed_Option = nullptr, *mPerforated_Option = nullptr,
                 *mHalftone_Option = nullptr, *mReversal_Option = nullptr, *mMirror_Option = nullptr,
                 *mBiDiPrint_Option = nullptr;
    const PDEChoice *mDensity_Selection = nullptr, *mSpeed_Selection = nullptr, *mMedia_Selection = nullptr,
                    *mFormFeedMode_Selection = nullptr, *mPaperFeed_Selection = nullptr,
                    *mPerforated_Selection = nullptr, *mHalftone_Selection = nullptr,
                    *mOption_Selection = nullptr, // of the option group as a whole; never set
                        *mReversal_Selection = nullptr, *mMirror_Selection = nullptr, *mBiDiPrint_Selection = nullptr;

    bool usb_dec = false; // the printer is connected by USB
    struct RefusedFeed
    {
        float marked; // inches, as before
        float written;
    };
    std::optional<RefusedFeed> mRefusedFeed; // as long as the PPD's parameter holds what was written and not marked
    bool set_formatSetting = false;          // the first display is done
    std::optional<QString> set_paperName;
    std::optional<QString> language_Nsme;
    bool isMetter = false;

private:
    /// What belongs to an option that both panels know. `popUp` or `checkBox` is what a refresh brings in line; null
    /// where no panel has such a control, or only one of them: that one says so in `popUpOf` or `checkBoxOf`.
    struct OptionMembers
    {
        OptionId id{};
        const char *selectionName = nullptr;
        ppd_option_t *SharedSettingsPDE::*option = nullptr;
        std::optional<ChoiceList> SharedSettingsPDE::*choices = nullptr;
        const PDEChoice *SharedSettingsPDE::*selection = nullptr;
        toolkit::PopUpButton SharedSettingsPDE::*popUp = nullptr;
        toolkit::CheckBox SharedSettingsPDE::*checkBox = nullptr;
    };
    static const std::array<OptionMembers, 10> kOptionMembers; // in the order of OptionId
    static const OptionMembers *membersOf(OptionId id);        // null for an option that one panel alone knows

    void findOptions();
    bool isInSummary(const SummaryRow &row);
    void addToSummary(PDESummary &summary, const SummaryRow &row, const OptionFields &fields);
    std::optional<QString> summaryValue(const SummaryRow &row, const OptionFields &fields) const;
    std::int64_t markedIndex(OptionId id);
    std::optional<double> markedFeed();
    QString choiceName(const ppd_choice_t &choice, const char *fallbackKey) const;
    void writeOption(const OptionFields &fields, std::int64_t index);
    void refreshPopUps(PDEItemFlags flags);
    void refreshCheckBoxes(PDEItemFlags flags);
    int indexOfSelection(OptionId id);
};
