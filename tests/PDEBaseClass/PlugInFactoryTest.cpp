// The principal class: which systems it serves, and which panels it makes.
#include "BasePDEPlugIn.h"

#include "Foundation/Bundle.h"
#include "Foundation/SystemVersion.h"
#include "Foundation/UserDefaults.h"
#include "Messages.h"
#include "Results.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <array>

using foundation::SystemVersion;

namespace {

int living = 0;

/// A panel that only counts itself.
class CountedPanel : public PDEPanel, private PDEPanelInspection
{
public:
    explicit CountedPanel(QString name)
        : m_name(std::move(name))
    {
        ++living;
    }
    ~CountedPanel() override { --living; }
    QString identifier() const override { return m_name; }
    QWidget *panelView() override { return nullptr; }
    QString panelName() override { return m_name; }
    QString panelKind() override { return {}; }
    std::optional<QStringList> supportedPPDOptionKeys() override { return std::nullopt; }
    void willShow() override {}
    bool shouldHide() override { return true; }
    bool saveValuesAndReturnError(QString *) override { return true; }
    bool restoreValuesAndReturnError(QString *) override { return true; }
    std::optional<PDESummary> summaryInfo() override { return std::nullopt; }
    bool shouldPrint() override { return true; }
    void printWindowWillClose(bool) override {}
    bool shouldShowHelp() override { return false; }
    void PPDOptionKeyValueDidChange(const std::optional<QString> &, const std::optional<QString> &) override {}
    const PDEPanelInspection &inspection() const override { return *this; }

private:
    bool isInterfaceLoaded() const override { return false; }
    std::vector<Control> controls() const override { return {}; }
    std::vector<Selection> selections() const override { return {}; }
    std::optional<QString> paperName() const override { return std::nullopt; }

    QString m_name;
};

class NoHost : public PDEPluginCallback_v100_
{
    const printing::Session *printSession() const override { return nullptr; }
    const printing::Settings *printSettings() const override { return nullptr; }
    const printing::PageFormat *pageFormat() const override { return nullptr; }
    const printing::Printer *PMPrinter() const override { return nullptr; }
    ppd_file_t *ppdFile() const override { return nullptr; }
    bool willChangePPDOptionKeyValue(const QString &, const QString &) override { return false; }
};

std::unique_ptr<PDEPanel> first(PDEPluginCallback_v100_ &, const foundation::Bundle &)
{
    return std::make_unique<CountedPanel>("first");
}
std::unique_ptr<PDEPanel> second(PDEPluginCallback_v100_ &, const foundation::Bundle &)
{
    return std::make_unique<CountedPanel>("second");
}
std::unique_ptr<PDEPanel> none(PDEPluginCallback_v100_ &, const foundation::Bundle &) { return nullptr; }

class Factory : public testing::Test
{
protected:
    void SetUp() override { m_bundle = support::value(foundation::Bundle::open(QN_BUNDLE_DIR, "none")); }
    QTemporaryDir m_directory;
    foundation::ScopedDefaults m_scope{m_directory.filePath("defaults.ini")};
    foundation::UserDefaults &m_defaults = foundation::UserDefaults::standard();
    std::unique_ptr<foundation::Bundle> m_bundle;
    NoHost m_host;
};

TEST_F(Factory, MakesItsPanelsInOrderAndLeavesOutOneThatFails)
{
    constexpr std::array<PDEPanelMaker, 3> makers{first, none, second};
    QNKVPageSettings15PlugIn_v100_ plugIn(makers);
    ASSERT_TRUE(plugIn.initWithBundle(*m_bundle));
    const PDEPanels *const panels = plugIn.PDEPanelsForType(kPDEPrintingOptionsType, m_host);
    ASSERT_TRUE(panels && panels->size() == 2);
    EXPECT_EQ((*panels)[0]->panelName(), "first");
    EXPECT_EQ((*panels)[1]->panelName(), "second");
}

TEST_F(Factory, AnswersNullWhenEveryPanelFailsAndNoneForAnotherType)
{
    constexpr std::array<PDEPanelMaker, 2> makers{none, none};
    QNKVPageSettings15PlugIn_v100_ plugIn(makers);
    ASSERT_TRUE(plugIn.initWithBundle(*m_bundle));
    EXPECT_EQ(plugIn.PDEPanelsForType(kPDEPrintingOptionsType, m_host), nullptr);
    const PDEPanels *const other = plugIn.PDEPanelsForType("bdb091f4-e57f-11d3-b5cc-0050e4603277", m_host);
    ASSERT_TRUE(other);
    EXPECT_TRUE(other->empty());
}

TEST_F(Factory, KeepsThePanelsOfAnEarlierCallUntilItsOwnEnd)
{
    constexpr std::array<PDEPanelMaker, 1> makers{first};
    {
        QNKVPageSettings15PlugIn_v100_ plugIn(makers);
        ASSERT_TRUE(plugIn.initWithBundle(*m_bundle));
        plugIn.PDEPanelsForType(kPDEPrintingOptionsType, m_host);
        plugIn.PDEPanelsForType(kPDEPrintingOptionsType, m_host);
        EXPECT_EQ(living, 2);
    }
    EXPECT_EQ(living, 0);
}

TEST_F(Factory, RemovesTheMemoWhateverTypeIsAskedFor)
{
    QNKVPageSettings15PlugIn_v100_ plugIn({});
    ASSERT_TRUE(plugIn.initWithBundle(*m_bundle));
    for (const char *type : {kPDEPrintingOptionsType, "another", ""}) {
        m_defaults.setObjectForKey("YES", "QnPerforated");
        plugIn.PDEPanelsForType(type, m_host);
        EXPECT_EQ(m_defaults.objectForKey("QnPerforated"), std::nullopt) << type;
    }
}

/// The answer is kept for the process; ctest gives each of these one of its own.
struct System
{
    const char *name;
    std::optional<SystemVersion> version;
    bool served;
};

class SystemOf : public Factory, public testing::WithParamInterface<System>
{};

TEST_P(SystemOf, IsServedFrom10Point5On)
{
    if (!qEnvironmentVariableIsSet("QN_OWN_PROCESS"))
        GTEST_SKIP() << "needs a process of its own: run it with ctest";
    const foundation::ScopedSystemVersion first(GetParam().version);
    QNKVPageSettings15PlugIn_v100_ plugIn({});
    EXPECT_EQ(plugIn.initWithBundle(*m_bundle), GetParam().served);
    const foundation::ScopedSystemVersion then(SystemVersion{GetParam().served ? 9 : 12, 0, 0});
    QNKVPageSettings15PlugIn_v100_ another({});
    EXPECT_EQ(another.initWithBundle(*m_bundle), GetParam().served); // never asked again
}

INSTANTIATE_TEST_SUITE_P(Versions, SystemOf,
                         testing::Values(System{"Version10Point4", SystemVersion{10, 4, 11}, false},
                                         System{"Version10Point5", SystemVersion{10, 5, 0}, true},
                                         System{"Version10Point6", SystemVersion{10, 6, 0}, true},
                                         System{"Version11", SystemVersion{11, 0, 0}, true},
                                         System{"Version9", SystemVersion{9, 9, 9}, false},
                                         System{"NoAnswer", std::nullopt, false}),
                         [](const auto &row) { return std::string(row.param.name); });

} // namespace
