// Printers that no bundle was made for are looked over for what is common to all, and hear of no other printer's
// panels.
#include "Lint.h"

#include <QDir>
#include <QProcess>
#include <QStandardPaths>

#include <algorithm>

using namespace support;

namespace {

/// A printer with one option of its own besides the paper, and no own sizes.
struct Foreign
{
    const char *name;
    const char *size; // of its page size, whose name it is as well
    const char *measures;
    const char *option;
    const char *attribute;
};

void PrintTo(const Foreign &row, std::ostream *out) { *out << row.name; }

const std::vector<Foreign> kForeigns{
    {"Label", "w90h162", "90 162", "LbMedia", ""},
    {"Office", "A4", "595 842", "Tray", ""},
    {"NearlyOurs", "A4", "595 842", "Speed", ""},
    {"OfABundleThatIsNotInstalled", "A4", "595 842", "Darkness", "*APDialogExtension: \"LabelPanels.plugin\"\n"},
};

QByteArray textOf(const Foreign &row)
{
    const QByteArray size = QByteArray(row.size);
    const QByteArray option = row.option;
    QByteArray text = "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*FileVersion: \"1.0\"\n*LanguageVersion: English\n"
                      "*LanguageEncoding: ISOLatin1\n*PCFileName: \"FOREIGN.PPD\"\n*Manufacturer: \"Example\"\n"
                      "*Product: \"(Foreign)\"\n*ModelName: \"Example Foreign\"\n*ShortNickName: \"Example Foreign\"\n"
                      "*NickName: \"Example Foreign\"\n*PSVersion: \"(3010.000) 0\"\n*LanguageLevel: \"3\"\n"
                      "*ColorDevice: False\n*DefaultColorSpace: Gray\n*FileSystem: False\n*cupsVersion: 2.3\n" +
                      QByteArray(row.attribute);
    for (const char *each : {"PageSize", "PageRegion"})
        text += QByteArray("*OpenUI *") + each + "/Media Size: PickOne\n*OrderDependency: 10 AnySetup *" + each +
                "\n*Default" + each + ": " + size + "\n*" + each + ' ' + size + '/' + size + ": \"\"\n*CloseUI: *" +
                each + '\n';
    text += "*DefaultImageableArea: " + size + "\n*ImageableArea " + size + ": \"0 0 " + row.measures +
            "\"\n*DefaultPaperDimension: " + size + "\n*PaperDimension " + size + ": \"" + row.measures + "\"\n";
    return text + "*OpenUI *" + option + "/A Text: PickOne\n*OrderDependency: 20 AnySetup *" + option + "\n*Default" +
           option + ": One\n*" + option + " One/One: \"\"\n*" + option + " Two/Two: \"\"\n*CloseUI: *" + option + '\n';
}

/// Of the bundle that is installed beside the general one.
bool isOfTheBundle(const QString &name)
{
    const auto common = value(host::checksFor({.files = {}, .bundle = QN_GENERAL_BUNDLE_DIR}));
    return std::ranges::find(common, name, &PDECheck::name) == common.end();
}

class ForeignPPD : public LintTest, public testing::WithParamInterface<Foreign>
{};

TEST_P(ForeignPPD, IsToldThatNoBundleIsMadeForItAndNothingElse)
{
    const auto linted = lint(textOf(GetParam()));
    ASSERT_EQ(linted.findings.size(), 1U) << asLines(GetParam().name, linted).toStdString();
    const PDEFinding &only = linted.findings.front();
    const bool isNamed = *GetParam().attribute;
    EXPECT_EQ(only.check, isNamed ? "extension" : "no-bundle");
    EXPECT_EQ(only.message, isNamed ? "no bundle \"LabelPanels.plugin\" that can serve is installed: General.plugin "
                                      "serves, as for whatever printer"
                                    : "no bundle is made for this PPD, and none has to be: the dialog shows its "
                                      "options as \"General\"");
    EXPECT_EQ(hasFailed(linted, true), isNamed);
}

INSTANTIATE_TEST_SUITE_P(Of, ForeignPPD, testing::ValuesIn(kForeigns),
                         [](const auto &row) { return std::string(row.param.name); });

TEST_F(LintTest, LooksAPPDOverWithTheBundleWhosePanelsTakeCareOfAnOption)
{
    const auto linted = lint(textOf({"", "A4", "595 842", "QnMedia", ""}));
    const auto has = [&](const char *check) {
        return std::ranges::any_of(linted.findings, [&](const PDEFinding &each) { return each.check == check; });
    };
    EXPECT_TRUE(has("extension") && has("hidden-flag") && has("size-type"));
    EXPECT_FALSE(has("no-bundle"));
}

TEST_F(LintTest, TellsOfABundleThatThePPDNamesAndThatIsBroken)
{
    ASSERT_TRUE(QDir(m_directory.path()).mkpath("Named.plugin"));
    qputenv("QNPRINT_PLUGIN_PATH", m_directory.path().toUtf8());
    const auto linted = lint(textOf({"", "A4", "595 842", "Tray", "*APDialogExtension: \"Named.plugin\"\n"}));
    qunsetenv("QNPRINT_PLUGIN_PATH");
    ASSERT_EQ(linted.findings.size(), 2U);
    EXPECT_EQ(linted.findings[0].check, "unchecked");
    EXPECT_TRUE(linted.findings[0].message.contains("Named.plugin")) << linted.findings[0].message.toStdString();
    EXPECT_EQ(linted.findings[1].check, "extension");
}

/// What the printing system brings for printers of all kinds.
TEST_F(LintTest, FindsNothingOfABundleInThePrintingSystemsOwnPPDs)
{
    const QDir sources("/usr/share/cups/drv");
    const QString compiler = QStandardPaths::findExecutable("ppdc");
    if (compiler.isEmpty() || !sources.exists())
        GTEST_SKIP() << "needs ppdc and what it compiles";
    for (const QString &source : sources.entryList({"*.drv"}))
        QProcess::execute(compiler, {"-d", m_directory.path(), sources.filePath(source)});
    const QStringList files = QDir(m_directory.path()).entryList({"*.ppd"});
    EXPECT_GT(files.size(), 5);
    for (const QString &file : files) {
        const auto linted = value(host::lint(m_directory.filePath(file), {}));
        for (const PDEFinding &each : linted.findings)
            EXPECT_FALSE(isOfTheBundle(each.check) || each.check == "extension" || each.check == "unchecked")
                << file.toStdString() << ": " << each.message.toStdString();
    }
}

} // namespace
