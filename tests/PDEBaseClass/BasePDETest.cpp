// The base of the panels, with a host that writes down what it is asked.
#include "BasePDE.h"

#include "Foundation/Bundle.h"
#include "PPDText.h"
#include "Print.h"
#include "RecordingHost.h"
#include "Results.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cstring>

using support::PPDText;
using support::RecordingHost;

namespace {

/// A panel that writes down which template operations it is sent.
class RecordingPanel : public BasePDE_v100_
{
public:
    using BasePDE_v100_::deviceURI;

    std::optional<ChoiceList> choices(const char *keyword) const
    {
        return PDEUtilsMethod::arrayFromPPDOption(ppdFindOption(ppd, keyword));
    }
    QStringList sent;

private:
    void initSetTitleTexts() override { sent.append("initSetTitleTexts"); }
    void initUI() override { sent.append("initUI"); }
    void setValuesToKey() override { sent.append("setValuesToKey"); }
    void setPDEItems() override { sent.append("setPDEItems"); }
    void setPDEItems2() override { sent.append("setPDEItems2"); }
    void updateMarkedSelections(PDEItemFlags flags) override { sent.append(QString("marked %1").arg(flags)); }
    void addObserverSelf() override { sent.append("addObserverSelf"); }
    void removeObserverSelf() override { sent.append("removeObserverSelf"); }
};

class BasePanel : public testing::Test
{
protected:
    void SetUp() override
    {
        m_host.usePPD(PPDText()
                          .attribute("FileVersion", "1.5")
                          .option("QnMedia", "Media", "B", {{"A", "a"}, {"B", "b"}, {"C", "c"}})
                          .option("QnSpeed", "Speed", "", {{"A", "a"}})
                          .option("QnMirror", "Mirror", "", {}));
        m_bundle = support::value(foundation::Bundle::open(QN_BUNDLE_DIR, "en"));
    }
    void init()
    {
        ASSERT_TRUE(m_panel.initWithCallback(m_host, *m_bundle));
        EXPECT_EQ(m_panel.sent, QStringList("addObserverSelf"));
        m_panel.sent.clear();
    }
    RecordingHost m_host;
    std::unique_ptr<foundation::Bundle> m_bundle;
    RecordingPanel m_panel;
};

TEST_F(BasePanel, TurnsTheProtocolIntoTemplateOperations)
{
    init();
    m_panel.willShow();
    EXPECT_EQ(m_panel.sent, QStringList({"initSetTitleTexts", "initUI", "setPDEItems"}));
    m_panel.sent.clear();
    EXPECT_TRUE(m_panel.restoreValuesAndReturnError(nullptr));
    EXPECT_EQ(m_panel.sent, QStringList({"setPDEItems2", "setPDEItems"}));
    m_panel.sent.clear();
    QString error = "untouched";
    EXPECT_TRUE(m_panel.saveValuesAndReturnError(&error));
    EXPECT_EQ(m_panel.supportedPPDOptionKeys(), std::nullopt);
    EXPECT_TRUE(m_panel.shouldHide());
    EXPECT_EQ(m_panel.sent, QStringList({"setValuesToKey", "setValuesToKey", "removeObserverSelf"}));
    EXPECT_EQ(error, "untouched");
}

TEST_F(BasePanel, AnswersForItself)
{
    init();
    EXPECT_TRUE(m_panel.shouldPrint());
    EXPECT_FALSE(m_panel.shouldShowHelp());
    EXPECT_FALSE(m_panel.summaryInfo());
    m_panel.printWindowWillClose(true);
    m_panel.PPDOptionKeyValueDidChange("QnMedia", "A");
    EXPECT_TRUE(m_panel.sent.isEmpty());
    EXPECT_EQ(m_panel.panelKind(), "org.qnprint.printer.cups.pde.PrintSettingPDEKind");
    EXPECT_EQ(m_panel.fileVerString(), QString("1.5"));
}

TEST_F(BasePanel, HasNoFileVersionWithoutAPPD) { EXPECT_EQ(m_panel.fileVerString(), std::nullopt); }

TEST_F(BasePanel, ReadsItsNameOnce)
{
    init();
    EXPECT_EQ(m_panel.panelName(), "Print Settings");
    m_bundle = support::value(foundation::Bundle::open(QN_BUNDLE_DIR, "de")); // the language changes
    EXPECT_EQ(m_panel.panelName(), "Print Settings");
}

struct Address
{
    QString uri;
    QByteArray kept;
};

TEST_F(BasePanel, KeepsAnAddressThatFitsIntoItsBuffer)
{
    const QByteArray longest = "usb://" + QByteArray(248, 'x'); // 254 characters and the terminator
    for (const auto &[uri, kept] : {Address{"usb://a", "usb://a"}, Address{"", ""}, Address{longest, longest},
                                    Address{longest + 'x', ""}, Address{QString(10000, 'x'), ""}}) {
        RecordingPanel panel;
        m_host.m_printer.setDeviceURI(uri);
        panel.initWithCallback(m_host, *m_bundle);
        EXPECT_EQ(QByteArray(panel.deviceURI.data()), kept);
    }
    RecordingPanel panel;
    m_host.m_printer.setDeviceURI(std::nullopt);
    panel.initWithCallback(m_host, *m_bundle);
    EXPECT_EQ(std::strlen(panel.deviceURI.data()), 0U);
}

TEST_F(BasePanel, FindsTheMarkedChoiceOrSaysThatThereIsNone)
{
    init();
    const auto media = m_panel.choices("QnMedia");
    EXPECT_EQ(m_panel.indexOfMarkedOption(media, "QnMedia"), 1);
    EXPECT_EQ(m_panel.indexOfMarkedOption(media, "QnSpeed"), -1); // nothing is marked
    EXPECT_EQ(m_panel.indexOfMarkedOption(media, "QnNone"), -1);
    const auto speed = m_panel.choices("QnSpeed");
    EXPECT_EQ(m_panel.indexOfMarkedOption(speed, "QnMedia"), 0); // "B" is not among them: like the first, by design
    EXPECT_EQ(m_panel.indexOfMarkedOption(std::nullopt, "QnMedia"), 0);
    EXPECT_EQ(m_panel.indexOfMarkedOption(ChoiceList(), "QnMedia"), 0);
}

TEST_F(BasePanel, FindsTheDefaultUnevenly)
{
    init();
    EXPECT_EQ(BasePDE_v100_::indexOfDefaultOption(m_panel.choices("QnMedia")), 1);
    EXPECT_EQ(BasePDE_v100_::indexOfDefaultOption(m_panel.choices("QnSpeed")), -1);
    EXPECT_EQ(BasePDE_v100_::indexOfDefaultOption(ChoiceList()), 0);
}

TEST_F(BasePanel, MarksASelectionThroughTheHostAndReadsBack)
{
    init();
    const auto media = m_panel.choices("QnMedia");
    EXPECT_EQ(m_panel.selectionForItem(2, "QnMedia", media, kPDEItem_Media), &(*media)[2]);
    EXPECT_EQ(m_host.asked, QStringList("QnMedia=C"));
    EXPECT_EQ(m_panel.sent, QStringList("marked 2"));
}

TEST_F(BasePanel, MarksNothingForASelectionThatIsNotThere)
{
    init();
    const auto media = m_panel.choices("QnMedia");
    EXPECT_EQ(m_panel.selectionForItem(3, "QnMedia", media, kPDEItem_Media), nullptr);
    EXPECT_EQ(m_panel.selectionForItem(static_cast<std::uint64_t>(-1), "QnMedia", media, kPDEItem_Media), nullptr);
    EXPECT_EQ(m_panel.selectionForItem(0, "QnMedia", std::nullopt, kPDEItem_Media), nullptr);
    EXPECT_EQ(m_panel.selectionForItem(0, "QnMirror", m_panel.choices("QnMirror"), kPDEItem_Mirror), nullptr);
    EXPECT_TRUE(m_host.asked.isEmpty());
    EXPECT_TRUE(m_panel.sent.isEmpty());
}

TEST(RefreshFlags, AreABitEach)
{
    constexpr std::array kFlags{kPDEItem_Density,    kPDEItem_Media,    kPDEItem_FormFeedMode, kPDEItem_PaperFeed,
                                kPDEItem_Perforated, kPDEItem_Halftone, kPDEItem_Reversal,     kPDEItem_Mirror,
                                kPDEItem_BiDiPrint,  kPDEItem_RollPrint};
    PDEItemFlags all = 0;
    for (const PDEItemFlags flag : kFlags) {
        EXPECT_EQ(std::popcount(flag), 1);
        EXPECT_EQ(all & flag, 0U) << flag; // a refresh of one option is none of another
        all |= flag;
    }
    EXPECT_EQ(all, 0x3ffU);
}

TEST_F(BasePanel, LoadsItsInterfaceOnce)
{
    init();
    QWidget *const view = m_panel.panelView();
    ASSERT_TRUE(view);
    EXPECT_EQ(m_panel.panelView(), view);
}

TEST_F(BasePanel, RemembersTheSupportedOptionsThatItIsGiven)
{
    EXPECT_EQ(m_panel.supportedOptions(), std::nullopt);
    m_panel.setSupportedOptions(QStringList("QnMedia"));
    EXPECT_EQ(m_panel.supportedOptions(), QStringList("QnMedia"));
    m_panel.setSupportedOptions(std::nullopt);
    EXPECT_EQ(m_panel.supportedOptions(), std::nullopt);
}

} // namespace
