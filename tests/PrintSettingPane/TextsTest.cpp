// The texts of the bundle: every key has one in every language, and every one has room.
#include "Print.h"
#include "Results.h"
#include "Session/DialogSession.h"

#include "Foundation/UserDefaults.h"
#include "Toolkit/Controls.h"

#include <QDir>
#include <QFile>
#include <QLayout>
#include <QRadioButton>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

namespace {

const QStringList kLanguages{"en", "ja", "de", "fr", "es", "zh_CN"};

QByteArray contents(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

/// Keys and texts of a language's table.
QMap<QString, QString> table(const QString &language)
{
    QMap<QString, QString> texts;
    QXmlStreamReader xml(contents(QString(QN_SOURCE_DIR "/Resources/Localizable_%1.ts").arg(language)));
    QString key;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == u"source")
            key = xml.readElementText();
        else if (xml.isStartElement() && xml.name() == u"translation")
            texts[key] = xml.readElementText();
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return texts;
}

/// Every string in a file that has the form of a key.
QSet<QString> keysIn(const QString &path)
{
    static const QRegularExpression form(
        R"re([">]((?:RS|HC|STEXT|AX)_[A-Za-z0-9_/\-]*[A-Za-z0-9]|Unsupported [A-Za-z0-9 ]+|OK)["<])re");
    QSet<QString> keys;
    const QString text = QString::fromUtf8(contents(path));
    for (auto match = form.globalMatch(text); match.hasNext();)
        keys.insert(match.next().captured(1));
    return keys;
}

QSet<QString> keysInUse()
{
    QSet<QString> keys;
    for (const char *room : {"PrintSettingPane", "PrintSettingPane/CustomView", "PDEBaseClass", "Resources"}) {
        const QDir directory(QString(QN_SOURCE_DIR "/%1").arg(room));
        for (const QString &file : directory.entryList({"*.h", "*.cpp", "*.ui"}, QDir::Files))
            keys += keysIn(directory.filePath(file));
    }
    return keys;
}

class Texts : public testing::TestWithParam<QString>
{};

std::string languageName(const testing::TestParamInfo<QString> &language) { return language.param.toStdString(); }

INSTANTIATE_TEST_SUITE_P(EachLanguage, Texts, testing::ValuesIn(kLanguages), languageName);

TEST_P(Texts, ExistForEveryKeyThatCodeAndInterfaceFilesName)
{
    const auto texts = table(GetParam());
    const auto keys = keysInUse();
    ASSERT_TRUE(keys.contains("RS_PaperFeed_1-1/2") && keys.contains("Unsupported Paper MSG4") &&
                keys.contains("STEXT_TAB2"));
    for (const QString &key : keys)
        EXPECT_FALSE(texts[key].trimmed().isEmpty()) << key.toStdString();
}

TEST_P(Texts, HaveTheSameKeysInEveryLanguage) { EXPECT_EQ(table(GetParam()).keys(), table("en").keys()); }

TEST_P(Texts, ExistForEveryTextOfTheFullExample)
{
    const auto texts = table(GetParam());
    const auto ppd = support::value(host::PPDDocument::open(QN_SOURCE_DIR "/examples/ppd/full.ppd"));
    for (int i = 0; i < ppd->file()->num_groups; ++i) {
        const ppd_group_t &group = ppd->file()->groups[i];
        for (int j = 0; j < group.num_options; ++j) {
            const ppd_option_t &option = group.options[j];
            if (!QByteArray(option.keyword).startsWith("Qn") || QByteArray(option.keyword) == "QnPaperSizeType")
                continue;
            EXPECT_TRUE(texts.contains(option.text)) << option.text;
            EXPECT_TRUE(texts.contains(QString(option.text) + " : ")) << option.text;
            for (int k = 0; k < option.num_choices; ++k) {
                const bool ofLibrary = QByteArray(option.choices[k].choice) == "Custom";
                EXPECT_TRUE(ofLibrary || texts.contains(option.choices[k].text)) << option.choices[k].text;
            }
        }
    }
}

/// What a control needs to show its text whole, frames and arrows included.
int widthNeeded(const QWidget &control)
{
    if (const auto *menu = qobject_cast<const QComboBox *>(&control)) {
        constexpr int kArrowAndFrame = 36;
        int widest = 0;
        for (int i = 0; i < menu->count(); ++i)
            widest = std::max(widest, menu->fontMetrics().horizontalAdvance(menu->itemText(i)));
        return widest + kArrowAndFrame;
    }
    return control.sizeHint().width();
}

/// Texts of the PPD show in one run; in the other the PPD has none, so that the fixed ones show.
class Room : public testing::TestWithParam<std::tuple<QString, QString>>
{
protected:
    std::unique_ptr<host::DialogSession> open(const QString &ppd, const QString &language)
    {
        host::DialogSession::Parameters parameters;
        parameters.ppdPath = ppd;
        parameters.localization = language;
        parameters.uri = "usb://Qn/Printer";
        auto session = support::value(host::DialogSession::open(parameters));
        session->start(host::DialogSession::Prepare::everyPanel);
        return session;
    }

    /// The full example with every text of an option or choice made unreadable.
    QString withoutTexts()
    {
        QByteArray ppd = contents(QN_SOURCE_DIR "/examples/ppd/full.ppd");
        QByteArrayList lines = ppd.split('\n');
        static const QRegularExpression named(R"(^\*(OpenUI \*)?Qn[A-Za-z]+[^/:"]*/)");
        for (QByteArray &line : lines)
            if (const auto match = named.match(QString::fromLatin1(line)); match.hasMatch())
                line.insert(match.capturedEnd(), "\xff");
        QFile file(m_directory.filePath("untitled.ppd"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(lines.join('\n')) > 0);
        return file.fileName();
    }

    QTemporaryDir m_directory;
    foundation::ScopedDefaults m_defaults{m_directory.filePath("defaults.ini")};
};

INSTANTIATE_TEST_SUITE_P(EachLanguage, Room,
                         testing::Combine(testing::ValuesIn(kLanguages), testing::Values("titled", "untitled")),
                         [](const auto &row) {
                             return (std::get<0>(row.param) + '_' + std::get<1>(row.param)).toStdString();
                         });

TEST_P(Room, IsEnoughForEveryTextInBothPanels)
{
    const auto &[language, kind] = GetParam();
    const auto session = open(kind == "titled" ? QN_SOURCE_DIR "/examples/ppd/full.ppd" : withoutTexts(), language);
    for (const char *name : {"basic", "advanced"}) {
        PDEPanel &panel = *session->panel(name);
        ASSERT_TRUE(session->show(panel));
        QWidget &view = *panel.panelView();
        view.ensurePolished();
        int checked = 0;
        for (QWidget *control : view.findChildren<QWidget *>()) {
            if (!control->isVisibleTo(&view) ||
                !(qobject_cast<toolkit::LabelControl *>(control) || qobject_cast<toolkit::PopUpControl *>(control) ||
                  qobject_cast<QAbstractButton *>(control)))
                continue;
            if (auto *column = control->parentWidget()->layout())
                column->activate();
            EXPECT_LE(widthNeeded(*control), control->width()) << name << ' ' << control->objectName().toStdString();
            ++checked;
        }
        EXPECT_GE(checked, 10) << name;
    }
}

} // namespace
