// The panels of the real bundle over a host that does less than ours: it may leave options unmarked and reports
// nothing. Where our own host always says more, this is what a panel knows and does by itself.
#include "RecordingHost.h"
#include "Results.h"
#include "SharedSettingsPDE.h"

#include "Foundation/NotificationCenter.h"
#include "Foundation/UserDefaults.h"
#include "Session/PlugIn.h"

#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

using namespace support;

namespace {

/// Opens what a panel keeps to itself: refreshes, an option or several at a time.
class Refreshes : public SharedSettingsPDE
{
public:
    static constexpr auto kReadMarks = &Refreshes::updateMarkedSelections;
    static constexpr auto kShow = &Refreshes::updateUIItem;
};

constexpr PDEItemFlags kEverything = 0x3ff;

class PanelOverAnotherHost : public testing::Test
{
protected:
    enum class Marked { defaults, nothing };

    void open(const PPDText &ppd, Marked marked = Marked::defaults, const QString &paper = "A4")
    {
        m_host.usePPD(ppd, marked == Marked::defaults);
        m_host.settings.setValue(printing::kPaperNameKey, paper);
        m_plugIn = value(host::PlugIn::load(QN_BUNDLE_DIR, "de"));
        m_principal = m_plugIn->entry->principalObject(m_plugIn->bundle->info().principalClass);
        ASSERT_TRUE(m_principal->initWithBundle(*m_plugIn->bundle));
        const PDEPanels &panels = *m_principal->PDEPanelsForType(kPDEPrintingOptionsType, m_host);
        ASSERT_EQ(panels.size(), 2U);
        use(*panels[0]);
    }
    void use(PDEPanel &panel) { m_panel = &panel; }
    void useAdvanced() { use(*m_principal->PDEPanelsForType(kPDEPrintingOptionsType, m_host)->back()); }
    void show()
    {
        m_panel->panelView()->show();
        m_panel->willShow();
        m_host.asked.clear();
    }
    void readMarks(PDEItemFlags flags) { (shared().*Refreshes::kReadMarks)(flags); }
    void refresh(PDEItemFlags flags) { (shared().*Refreshes::kShow)(flags); }
    void choosePaper(const QString &name)
    {
        m_host.settings.setValue(printing::kPaperNameKey, name);
        foundation::NotificationCenter::defaultCenter().post(printing::kPaperDidChangeNotification);
    }

    /// The choice selected of an option; nil text for none.
    QString selection(const QString &field) const
    {
        for (const auto &each : m_panel->inspection().selections())
            if (each.name == field)
                return each.choice.value_or(QString());
        ADD_FAILURE() << "no selection " << field.toStdString();
        return {};
    }
    QMap<QString, QString> selections() const
    {
        QMap<QString, QString> result;
        for (const auto &each : m_panel->inspection().selections())
            result.insert(each.name, each.choice.value_or(QString()));
        return result;
    }
    template <class Control>
    Control &control(const QString &name) const
    {
        return *m_panel->panelView()->findChild<Control *>(name);
    }
    toolkit::PopUpControl &menu(const QString &name) const { return control<toolkit::PopUpControl>(name); }
    QString available(const QString &name) const
    {
        QString result;
        for (int i = 0; i < menu(name).count(); ++i)
            result += menu(name).isItemEnabled(i) ? '+' : '-';
        return result;
    }
    static std::optional<QString> memo() { return foundation::UserDefaults::standard().objectForKey("QnPerforated"); }

    QTemporaryDir m_directory;
    foundation::ScopedDefaults m_defaults{m_directory.filePath("defaults.ini")};
    RecordingHost m_host;
    std::optional<host::PlugIn> m_plugIn;
    std::unique_ptr<PDEPlugIn> m_principal;
    PDEPanel *m_panel = nullptr;

private:
    SharedSettingsPDE &shared() { return static_cast<SharedSettingsPDE &>(*m_panel); }
};

const PPDText::Choices kThree{{"A", "a"}, {"B", "b"}, {"C", "c"}};

class WithoutControls : public PanelOverAnotherHost, public testing::WithParamInterface<const char *>
{};

TEST_P(WithoutControls, TheDefaultIsSavedWhenNothingIsMarked)
{
    m_host.marksChoices = false;
    open(PPDText().option(GetParam(), "Title", "B", kThree), Marked::nothing);
    m_panel->supportedPPDOptionKeys();
    EXPECT_EQ(m_host.asked, QStringList(QString(GetParam()) + "=B"));
}

TEST_P(WithoutControls, TheMarkedChoiceIsSavedAndNotTheDefault)
{
    open(PPDText().option(GetParam(), "Title", "B", kThree));
    m_host.mark(GetParam(), "C");
    m_panel->supportedPPDOptionKeys();
    EXPECT_EQ(m_host.asked, QStringList(QString(GetParam()) + "=C"));
}

INSTANTIATE_TEST_SUITE_P(EachOption, WithoutControls,
                         testing::Values("QnMedia", "QnFormFeedMode", "QnPerforated", "QnRollPrinterCase"),
                         [](const auto &row) { return std::string(row.param); });

TEST_F(PanelOverAnotherHost, SelectsTheDefaultWhenNothingIsMarked)
{
    open(PPDText().option("QnMedia", "Title", "B", kThree), Marked::nothing);
    m_panel->restoreValuesAndReturnError(nullptr);
    EXPECT_EQ(selection("mMedia_Selection"), "B");
}

TEST_F(PanelOverAnotherHost, SelectsNothingWhereNothingIsMarkedAndNothingIsTheDefault)
{
    open(PPDText().option("QnMedia", "Title", "", kThree), Marked::nothing);
    m_panel->PPDOptionKeyValueDidChange("QnMedia", "C");
    ASSERT_EQ(selection("mMedia_Selection"), "C");
    m_panel->restoreValuesAndReturnError(nullptr);
    EXPECT_TRUE(selection("mMedia_Selection").isNull());
}

TEST_F(PanelOverAnotherHost, SaysTheSelectionsOwnTitleInTheSummaryWhenNothingIsMarked)
{
    open(PPDText().option("QnMedia", "Title", "A", {{"A", "Thermal Paper"}}), Marked::nothing);
    m_panel->restoreValuesAndReturnError(nullptr);
    EXPECT_EQ(m_panel->summaryInfo()->values["Title"], "Thermal Paper"); // as the PPD has it
    m_host.mark("QnMedia", "A");
    EXPECT_EQ(m_panel->summaryInfo()->values["Title"], "Thermopapier"); // as the table has it
}

// Which selections a panel reads anew for one flag.
struct Reread
{
    PDEItemFlags flags;
    QStringList basic;
    QStringList advanced;
};

void PrintTo(const Reread &row, std::ostream *out) { *out << "0x" << std::hex << row.flags; }

class RereadSelections : public PanelOverAnotherHost, public testing::WithParamInterface<Reread>
{
protected:
    QStringList changed()
    {
        readMarks(kEverything);
        const auto before = selections();
        for (const auto &[key, choice] : {std::pair("QnDensity", "D3"),
                                          {"QnSpeed", "S1"},
                                          {"QnMedia", "ThermalCopy"},
                                          {"QnFormFeedMode", "FF1"},
                                          {"QnPaperFeed", "Feed2"},
                                          {"QnPerforated", "ON"},
                                          {"QnHalftonePattern", "Binary"},
                                          {"QnReversal", "ON"},
                                          {"QnRollPrinterCase", "On"},
                                          {"QnMirror", "ON"},
                                          {"QnBiDiPrint", "ON"}})
            m_host.mark(key, choice);
        readMarks(GetParam().flags);
        const auto after = selections();
        QStringList result;
        for (const QString &name : after.keys())
            if (before[name] != after[name])
                result.append(name);
        return result;
    }
};

TEST_P(RereadSelections, AreThoseOfTheFlag)
{
    open(PPDText().allOptions());
    EXPECT_EQ(changed(), GetParam().basic);
    open(PPDText().allOptions());
    useAdvanced();
    EXPECT_EQ(changed(), GetParam().advanced);
}

Reread sameInBoth(PDEItemFlags flags, const QStringList &names) { return {flags, names, names}; }

INSTANTIATE_TEST_SUITE_P(
    EachFlag, RereadSelections,
    testing::Values(sameInBoth(0x001, {"mDensity_Selection"}),
                    sameInBoth(0x002, {"mMedia_Selection", "mSpeed_Selection"}),
                    sameInBoth(0x004, {"mFormFeedMode_Selection"}), sameInBoth(0x008, {"mPaperFeed_Selection"}),
                    sameInBoth(0x010, {"mPerforated_Selection"}), sameInBoth(0x020, {"mHalftone_Selection"}),
                    sameInBoth(0x040, {"mReversal_Selection"}), sameInBoth(0x080, {"mMirror_Selection"}),
                    sameInBoth(0x100, {"mBiDiPrint_Selection"}),
                    Reread{0x200, {"mRollPrint_Selection", "mSpeed_Selection"}, {"mSpeed_Selection"}}));

TEST_F(PanelOverAnotherHost, CorrectsTheItemsToThePaperWhateverIsRefreshed)
{
    open(PPDText().allOptions());
    show();
    menu("mFormFeedModePopUp").select(3); // not on plain paper
    menu("mPerforatedPopUp").select(1);
    refresh(kPDEItem_Perforated);
    EXPECT_EQ(menu("mFormFeedModePopUp").currentIndex(), 1);
    EXPECT_EQ(menu("mPerforatedPopUp").currentIndex(), 0);
}

TEST_F(PanelOverAnotherHost, OffersNoPerforationOnRetractPaperWhateverTheMenuShowedBefore)
{
    open(PPDText().allOptions());
    show();
    menu("mFormFeedModePopUp").select(1);
    m_host.settings.setValue(printing::kPaperNameKey, "RetractA4"); // of which the panel has not heard
    m_host.mark("QnFormFeedMode", "FF3");
    readMarks(kPDEItem_FormFeedMode);
    refresh(kPDEItem_FormFeedMode);
    EXPECT_EQ(menu("mFormFeedModePopUp").currentIndex(), 3);
    EXPECT_EQ(available("mFormFeedModePopUp"), "---+");
    EXPECT_EQ(available("mPerforatedPopUp"), "+-");
}

TEST_F(PanelOverAnotherHost, RefreshesTheSpeedAloneInTheAdvancedPanelForTheRollPrinterCase)
{
    open(PPDText().allOptions());
    useAdvanced();
    show();
    for (const auto &[key, choice] : {std::pair("QnDensity", "D3"),
                                      {"QnSpeed", "S1"},
                                      {"QnMedia", "ThermalCopy"},
                                      {"QnPaperFeed", "Feed2"},
                                      {"QnHalftonePattern", "Binary"},
                                      {"QnReversal", "ON"},
                                      {"QnPerforated", "ON"},
                                      {"QnMirror", "ON"},
                                      {"QnBiDiPrint", "ON"}})
        m_host.mark(key, choice);
    const int feed = menu("mPaperFeedPopUp").currentIndex();
    readMarks(kEverything);
    menu("mFormFeedModePopUp").select(3);
    refresh(kPDEItem_RollPrint);
    EXPECT_EQ(menu("mSpeedPopUp").currentIndex(), 2);
    EXPECT_EQ(menu("mDensityPopUp").currentIndex(), 0);
    EXPECT_EQ(menu("mMediaPopUp").currentIndex(), 0);
    EXPECT_EQ(menu("mPaperFeedPopUp").currentIndex(), feed);
    EXPECT_EQ(control<toolkit::RadioControl>("mHalftoneRadio").selectedRow(), 1);
    for (const char *box : {"mReversalChkBx", "mPerforatedChkBx", "mMirrorChkBx", "mBiDiPrintChkBx"})
        EXPECT_EQ(control<toolkit::CheckControl>(box).state(), 0) << box;
    EXPECT_EQ(menu("mFormFeedModePopUp").currentIndex(), 1); // the adjustments to the paper run all the same
    EXPECT_EQ(available("mFormFeedModePopUp"), "+++-");
}

TEST_F(PanelOverAnotherHost, TakesThePerforationBackOnContinuousPaperInTheAdvancedPanel)
{
    open(PPDText().allOptions(), Marked::defaults, "Poster");
    useAdvanced();
    show();
    menu("mFormFeedModePopUp").select(1);
    menu("mPerforatedPopUp").select(1);
    choosePaper("Banner");
    ASSERT_TRUE(control<toolkit::CheckControl>("mPerforatedChkBx").isEnabled());
    ASSERT_EQ(menu("mPerforatedPopUp").currentIndex(), 1);
    choosePaper("ContinuousLetter");
    EXPECT_EQ(menu("mFormFeedModePopUp").currentIndex(), 0);
    EXPECT_EQ(menu("mPerforatedPopUp").currentIndex(), 0);
    EXPECT_FALSE(control<toolkit::CheckControl>("mPerforatedChkBx").isEnabled());
}

TEST_F(PanelOverAnotherHost, SwitchesThePerforationOffWhenItem2IsPickedOnTheRoll)
{
    // No menu of ours offers item 2 there; the action has a rule for it all the same.
    open(PPDText().allOptions(), Marked::defaults, "RollA4");
    show();
    menu("mFormFeedModePopUp").choose(1);
    ASSERT_EQ(memo(), "YES");
    ASSERT_EQ(available("mPerforatedPopUp"), "++");
    menu("mPerforatedPopUp").choose(1);
    menu("mFormFeedModePopUp").choose(2);
    EXPECT_EQ(memo(), "NO");
    EXPECT_EQ(menu("mPerforatedPopUp").currentIndex(), 0);
    EXPECT_EQ(available("mPerforatedPopUp"), "+-");
}

TEST_F(PanelOverAnotherHost, LeavesTheFocusInTheFormFeedMenu)
{
    open(PPDText().allOptions());
    show();
    auto &formFeed = menu("mFormFeedModePopUp");
    for (const int item : {1, 2, 0}) { // the amount can be typed with the last one only
        formFeed.setFocus();
        formFeed.choose(item);
        EXPECT_EQ(formFeed.window()->focusWidget(), &formFeed) << item;
    }
}

class PerforatedItem1 : public PanelOverAnotherHost, public testing::WithParamInterface<const char *>
{};

TEST_P(PerforatedItem1, MovesTheFormFeedToItem1OnTheScreenOnly)
{
    open(PPDText().allOptions(), Marked::defaults, GetParam());
    show();
    ASSERT_EQ(menu("mFormFeedModePopUp").currentIndex(), 0);
    menu("mPerforatedPopUp").choose(1);
    EXPECT_EQ(menu("mFormFeedModePopUp").currentIndex(), 1);
    EXPECT_EQ(available("mFormFeedModePopUp"), "-+--");
    EXPECT_EQ(m_host.asked, QStringList("QnPerforated=ON"));
}

INSTANTIATE_TEST_SUITE_P(RollsAndUserDefined, PerforatedItem1,
                         testing::Values("RollA4", "RollLetter", "RollLegal", "customsize"));

TEST_F(PanelOverAnotherHost, ForgetsThePerforationWhenItGoes)
{
    open(PPDText().allOptions(), Marked::defaults, "RollA4");
    show();
    menu("mFormFeedModePopUp").choose(1);
    ASSERT_EQ(memo(), "YES");
    m_principal.reset();
    EXPECT_EQ(memo(), std::nullopt);
}

/// Counts how often a widget is drawn.
class Drawn : public QObject
{
public:
    int count = 0;

private:
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Paint;
        return false;
    }
};

TEST_F(PanelOverAnotherHost, DrawsThePreviewAnewForEachRowEvenWithoutAHalftoneOption)
{
    open(PPDText());
    useAdvanced();
    show();
    QWidget *preview = nullptr;
    for (const auto &each : m_panel->inspection().controls())
        if (each.name == "mHalftoneView")
            preview = each.widget;
    ASSERT_TRUE(preview && preview->isVisible());
    QTest::qWait(50); // the window's own drawing
    Drawn drawn;
    preview->installEventFilter(&drawn);
    control<toolkit::RadioControl>("mHalftoneRadio").choose(2);
    EXPECT_TRUE(QTest::qWaitFor([&] { return drawn.count > 0; }, 2000));
}

} // namespace
