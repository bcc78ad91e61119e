// Bundles that lack something, or are something else: one clear sentence, and whatever works goes on working.
#include "Dialog.h"
#include "Messages.h"
#include "Session/PlugIn.h"

#include "Foundation/StringTable.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QLibraryInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTranslator>

using namespace support;

namespace {

class DamagedBundle : public DialogTest
{
protected:
    void SetUp() override
    {
        m_path = m_directory.filePath("Copy.plugin");
        ASSERT_EQ(QProcess::execute("cp", {"-r", QN_BUNDLE_DIR, m_path}), 0);
    }
    void remove(const QString &pattern)
    {
        QDir resources(m_path + "/Resources");
        for (const QString &name : resources.entryList({pattern}))
            ASSERT_TRUE(resources.remove(name));
    }
    void write(const QString &name, const QByteArray &content)
    {
        QFile file(m_path + '/' + name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }
    void openCopy(const QString &language = "none")
    {
        openFile(PPDText().allOptions().file(), {{"bundle", m_path}, {"language", language}});
    }
    /// Opens, and answers the sentence of the refusal.
    QString refusal()
    {
        request({{"do", "open"}, {"ppd", PPDText().allOptions().file()}, {"bundle", m_path}});
        EXPECT_FALSE(reply()["ok"].toBool(true));
        EXPECT_TRUE(error().startsWith(m_path)) << error().toStdString();
        EXPECT_FALSE(error().contains('\n'));
        return error().mid(m_path.size());
    }

    QTemporaryDir m_directory;
    QString m_path;
};

TEST_F(DamagedBundle, WorksWhole)
{
    openCopy();
    show("basic");
    pick("mMediaPopUp", 1);
    EXPECT_EQ(marked("QnMedia"), "ThermalCopy");
}

TEST_F(DamagedBundle, WithoutInterfaceFilesHasPanelsThatCannotBeShown)
{
    remove("*.ui");
    ExpectMessage basic("the bundle has no interface file PrintSettingPDE.ui");
    ExpectMessage advanced("the bundle has no interface file PrintSettingAdvancedPDE.ui");
    openCopy();
    request({{"do", "show"}, {"panel", "basic"}});
    EXPECT_EQ(error(), "panel \"basic\" has no interface to show");
    EXPECT_TRUE(print());
    EXPECT_EQ(marked("QnPaperSizeType"), "QnCutSize");
}

TEST_F(DamagedBundle, IsToldOfInTheLogWhateverTheEnvironmentSays)
{
    remove("*.ui");
    QProcess program;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_LOGGING_RULES", "*=false");
    environment.insert("QT_MESSAGE_PATTERN", "%{if-fatal}%{message}%{endif}");
    program.setProcessEnvironment(environment);
    program.start(QN_PROGRAM, {"script"});
    program.write(QJsonDocument({{"do", "open"}, {"ppd", PPDText().allOptions().file()}, {"bundle", m_path}})
                      .toJson(QJsonDocument::Compact));
    program.closeWriteChannel();
    ASSERT_TRUE(program.waitForFinished());
    EXPECT_TRUE(program.readAllStandardError().contains("has no interface file PrintSettingPDE.ui\n"));
}

class UnreadableInterface : public DamagedBundle, public testing::WithParamInterface<const char *>
{};

TEST_P(UnreadableInterface, IsLeftOut)
{
    write("Resources/PrintSettingPDE.ui", GetParam());
    RecordMessages messages;
    openCopy();
    EXPECT_FALSE(messages.messages().isEmpty());
    show("advanced");
    request({{"do", "show"}, {"panel", "basic"}});
    EXPECT_EQ(error(), "panel \"basic\" has no interface to show");
    EXPECT_EQ(state("basic")["display"].toString(), "advanced"); // nothing has changed
}

INSTANTIATE_TEST_SUITE_P(Contents, UnreadableInterface,
                         testing::Values("", "not XML", "<ui version=\"4.0\">", "<html></html>",
                                         "<ui version=\"3.0\"/>", "<ui version=\"4.0\"><class>X</class></ui>"));

TEST_F(DamagedBundle, WithAnInterfaceOfOtherControlsConnectsWhatFits)
{
    write("Resources/PrintSettingPDE.ui",
          R"(<ui version="4.0"><class>X</class><widget class="QWidget" name="kPDEView">
             <widget class="toolkit::LabelControl" name="mMediaPopUp"/>
             <widget class="toolkit::PopUpControl" name="mFormFeedModePopUp"/>
             <widget class="toolkit::PopUpControl" name="mUnknown"/></widget></ui>)");
    openCopy();
    show("basic");
    EXPECT_TRUE(state("basic")["panels"][QString("basic")].toObject()["controls"].toObject()["mMediaPopUp"].isNull());
    EXPECT_EQ(titles("mFormFeedModePopUp").size(), 4); // from an empty menu
    EXPECT_EQ(selected("mFormFeedModePopUp"), 0);
    choosePaper("RollA4");
    EXPECT_TRUE(print());
}

TEST_F(DamagedBundle, WithAStepperThatStandsStillGoesFrom1To2)
{
    // Only such a stepper is at 1 after a click while the text is 1: the text becomes 2, the stepper keeps 1.
    QFile original(QN_BUNDLE_DIR "/Resources/PrintSettingPDE.ui");
    ASSERT_TRUE(original.open(QIODevice::ReadOnly));
    const QByteArray still = R"(name="increment"><double>0</double>)";
    const QByteArray content = original.readAll().replace(R"(name="increment"><double>1</double>)", still);
    ASSERT_TRUE(content.contains(still));
    write("Resources/PrintSettingPDE.ui", content);
    openCopy();
    show("basic");
    type("1");
    step(1);
    EXPECT_EQ(text("mPaperFeedTxt"), "2");
    EXPECT_EQ(control("mPaperFeedStepper")["value"].toDouble(), 1);
}

TEST_F(DamagedBundle, WithoutStringTablesShowsKeys)
{
    remove("*.qm");
    openCopy("de");
    request({{"do", "name"}, {"panel", "basic"}});
    EXPECT_EQ(reply()["result"].toString(), "STEXT_TAB1");
}

TEST_F(DamagedBundle, WithAnUnreadableStringTableFallsBackToEnglish)
{
    write("Resources/Localizable_de.qm", "no table");
    openCopy("de");
    request({{"do", "name"}, {"panel", "basic"}});
    EXPECT_EQ(reply()["result"].toString(), "Print Settings");
}

/// Every key of a table is asked of it, as far as it is one.
void readAll(const QString &path)
{
    const auto table = foundation::loadStringTable(path);
    for (const char *key : {"STEXT_TAB1", "STEXT_TAB2", "RS_STitle_Model", "AX_HalftonePreview", "no such key"})
        if (table)
            table->translate("Localizable", key);
}

TEST_F(DamagedBundle, WithAnyDamageToItsStringTableIsReadWithinIt)
{
    QFile original(QN_BUNDLE_DIR "/Resources/Localizable_de.qm");
    ASSERT_TRUE(original.open(QIODevice::ReadOnly));
    const QByteArray whole = original.readAll();
    const QString path = m_path + "/Resources/Localizable_de.qm";
    ASSERT_TRUE(foundation::loadStringTable(original.fileName()));
    for (qsizetype length = 0; length < whole.size(); length += 7) {
        write("Resources/Localizable_de.qm", whole.first(length));
        readAll(path);
    }
    for (qsizetype at = 16; at < whole.size(); at += at < 2000 ? 1 : 41) {
        for (const char value : {'\x00', '\x7f', '\xff'}) {
            QByteArray damaged = whole;
            damaged[at] = value;
            write("Resources/Localizable_de.qm", damaged);
            readAll(path);
        }
    }
}

TEST_F(DamagedBundle, WhoseStringTableLeadsOutOfItselfFallsBackToEnglish)
{
    QFile original(QN_BUNDLE_DIR "/Resources/Localizable_de.qm");
    ASSERT_TRUE(original.open(QIODevice::ReadOnly));
    const QByteArray whole = original.readAll();
    const qsizetype hashes = whole.indexOf('\x42', 16);
    for (const qsizetype far : {hashes + 1, hashes + 1 + 4 + 4}) { // the section's length; the first message's place
        QByteArray damaged = whole;
        damaged[far] = '\x7f';
        write("Resources/Localizable_de.qm", damaged);
        openCopy("de");
        request({{"do", "name"}, {"panel", "basic"}});
        EXPECT_EQ(reply()["result"].toString(), "Print Settings");
    }
}

TEST_F(DamagedBundle, TakesTheLanguageOfARegionItDoesNotKnow)
{
    openCopy("de_AT");
    request({{"do", "name"}, {"panel", "basic"}});
    EXPECT_EQ(reply()["result"].toString(), "Druckeinstellungen");
}

TEST_F(DamagedBundle, WithoutPicturesPreviewsNothing)
{
    remove("*.png");
    openCopy();
    show("advanced");
    EXPECT_TRUE(control("mHalftoneView")["picture"].isNull());
    row("mHalftoneRadio", 0);
    EXPECT_EQ(marked("QnHalftonePattern"), "Binary");
}

TEST_F(DamagedBundle, WithAnEmptyPicturePreviewsTheOthers)
{
    write("Resources/Dither.png", "");
    openCopy();
    show("advanced");
    EXPECT_TRUE(control("mHalftoneView")["picture"].isNull()); // the default row is the dither
    row("mHalftoneRadio", 0);
    EXPECT_EQ(control("mHalftoneView")["picture"].toString(), "Binary");
}

TEST_F(DamagedBundle, OfAnotherInterfaceVersionIsRefused)
{
    write(
        "Info.json",
        R"({"executable":"QNKVPageSettings15.so","principalClass":"QNKVPageSettings15PlugIn_v100_","abiVersion":99})");
    EXPECT_EQ(refusal(), QString(": made for interface version 99, this dialog has %1").arg(kPDEInterfaceVersion));
}

TEST_F(DamagedBundle, BuiltAgainstAnotherStandardLibraryOrAnotherQtIsRefusedBeforeItsCodeIsLookedAt)
{
    ASSERT_TRUE(QFile::remove(m_path + "/QNKVPageSettings15.so"));
    const QString info = R"({"executable":"QNKVPageSettings15.so","principalClass":"x","abiVersion":%1%2})";
    write("Info.json", info.arg(kPDEInterfaceVersion).arg(R"(,"build":"libc++-qt6")").toUtf8());
    EXPECT_EQ(refusal(), QString(": built for “libc++-qt6”, this dialog is “%1”").arg(host::buildTag()));
    write("Info.json", info.arg(kPDEInterfaceVersion).arg(QString()).toUtf8());
    EXPECT_EQ(refusal(), QString(": built for “”, this dialog is “%1”").arg(host::buildTag()));
}

TEST_F(DamagedBundle, WhoseCodeIsAnotherKindOfPlugInIsRefusedAndNothingOfItRuns)
{
    const QDir plugIns(QLibraryInfo::path(QLibraryInfo::PluginsPath));
    ASSERT_TRUE(QFile::remove(m_path + "/QNKVPageSettings15.so"));
    ASSERT_TRUE(QFile::copy(plugIns.filePath("imageformats/libqgif.so"), m_path + "/QNKVPageSettings15.so"));
    EXPECT_EQ(refusal(), ": QNKVPageSettings15.so is not the code of a panel plug-in");
    QFile maps("/proc/self/maps");
    ASSERT_TRUE(maps.open(QIODevice::ReadOnly));
    EXPECT_FALSE(maps.readAll().contains(m_path.toUtf8()));
}

TEST_F(DamagedBundle, WithoutInfoOrWithBrokenInfoIsRefused)
{
    write("Info.json", "{");
    EXPECT_TRUE(refusal().startsWith("/Info.json: "));
    write("Info.json", "{}");
    EXPECT_EQ(refusal(), "/Info.json: names no executable or no principal class");
    ASSERT_TRUE(QFile::remove(m_path + "/Info.json"));
    EXPECT_TRUE(refusal().contains("not a plug-in bundle"));
}

TEST_F(DamagedBundle, WithoutItsCodeOrWithOtherCodeIsRefused)
{
    write("QNKVPageSettings15.so", "no code");
    EXPECT_TRUE(refusal().size() > 2);
    ASSERT_TRUE(QFile::remove(m_path + "/QNKVPageSettings15.so"));
    EXPECT_TRUE(refusal().size() > 2);
}

TEST_F(DamagedBundle, WithAPipeInPlaceOfAFileIsRefusedAtOnce)
{
    for (const QString &name : {QString("QNKVPageSettings15.so"), QString("Info.json")}) {
        ASSERT_TRUE(QFile::remove(m_path + '/' + name));
        ASSERT_EQ(::mkfifo(QFile::encodeName(m_path + '/' + name).constData(), 0600), 0);
        EXPECT_TRUE(refusal().contains(": not a file")) << refusal().toStdString();
    }
}

TEST_F(DamagedBundle, OfAnotherInterfaceVersionDoesNotStandInTheWayOfOneThatFits)
{
    write("Info.json", R"({"executable":"x","principalClass":"y","abiVersion":99})");
    const QTemporaryDir folder;
    ASSERT_TRUE(QFile::link(m_path, folder.filePath("A.plugin")));
    ASSERT_TRUE(QFile::link(QN_BUNDLE_DIR, folder.filePath("B.plugin")));
    const QByteArray before = qgetenv("QNPRINT_PLUGIN_PATH");
    qputenv("QNPRINT_PLUGIN_PATH", folder.path().toUtf8());
    EXPECT_EQ(host::findBundle(std::nullopt), folder.filePath("B.plugin"));
    ASSERT_TRUE(QFile::remove(folder.filePath("B.plugin")));
    ASSERT_TRUE(QFile::link(m_path, folder.filePath("B.plugin")));
    EXPECT_EQ(host::findBundle("B.plugin"), folder.filePath("B.plugin")); // the PPD's own, whatever it is like
    qputenv("QNPRINT_PLUGIN_PATH", before);
}

TEST_F(DamagedBundle, OfAnotherPrincipalClassIsNotAccepted)
{
    const QString info =
        R"({"executable":"QNKVPageSettings15.so","principalClass":"Another","abiVersion":%1,"build":"%2"})";
    write("Info.json", info.arg(QString::number(kPDEInterfaceVersion), host::buildTag()).toUtf8());
    openCopy();
    EXPECT_FALSE(reply()["accepted"].toBool(true));
    EXPECT_EQ(reply()["panels"], QJsonValue(QJsonArray()));
    request({{"do", "state"}});
    EXPECT_EQ(reply()["defaults"], QJsonValue(QJsonObject{{"QnPerforated", QJsonValue()}})); // its code still says so
}

TEST_F(DamagedBundle, ThatDoesNotExistIsRefused)
{
    m_path += ".gone";
    EXPECT_EQ(refusal(), ": no such plug-in bundle");
}

TEST_F(DamagedBundle, IsNeverTakenFromAPathInThePPD)
{
    // Only the name of the PPD's bundle counts, and only among the bundles of the plug-in directories.
    openFile(PPDText().allOptions().attribute("APDialogExtension", m_path.toLatin1()).file());
    EXPECT_TRUE(reply()["accepted"].toBool());
    QProcess program;
    program.setProcessEnvironment([this] {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert("QNPRINT_PLUGIN_PATH", m_directory.path());
        return environment;
    }());
    write("Info.json", "{");
    program.start(QN_PROGRAM, {"script"});
    program.write("{\"do\":\"open\",\"ppd\":\"" +
                  PPDText().attribute("APDialogExtension", "/elsewhere/Copy.plugin").file().toUtf8() + "\"}\n");
    program.closeWriteChannel();
    ASSERT_TRUE(program.waitForFinished(20000));
    EXPECT_TRUE(program.readAllStandardOutput().contains("Copy.plugin/Info.json")); // found by its name
}

} // namespace
