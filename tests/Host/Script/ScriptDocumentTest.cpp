// docs/script.md says what the program does: its examples are run, and it has all requests and kinds of controls.
#include "Script/Script.h"

#include "Foundation/UserDefaults.h"
#include "Print.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

QString document()
{
    QFile file(QN_SOURCE_DIR "/docs/script.md");
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return QString::fromUtf8(file.readAll());
}

/// Whether a reply has all that is shown of it: each member of each object, and lists as they are.
bool has(const QJsonValue &reply, const QJsonValue &shown)
{
    if (!shown.isObject())
        return reply == shown;
    const QJsonObject members = shown.toObject();
    for (auto each = members.begin(); each != members.end(); ++each)
        if (!reply.isObject() || !reply.toObject().contains(each.key()) ||
            !has(reply.toObject()[each.key()], each.value()))
            return false;
    return true;
}

QStringList matches(const QString &text, const char *expression)
{
    QStringList found;
    for (const auto &match :
         QRegularExpression(QLatin1String(expression), QRegularExpression::MultilineOption).globalMatch(text))
        found.append(match.captured(1));
    return found;
}

TEST(TheDocumentOfScripts, ShowsWhatEachRequestOfItIsAnsweredWith)
{
    const QTemporaryDir folder;
    foundation::UserDefaults::standard().useStore(
        std::make_unique<QSettings>(folder.filePath("defaults.ini"), QSettings::IniFormat));
    ASSERT_TRUE(QDir::setCurrent(QN_SOURCE_DIR));
    host::Script script;
    int shown = 0;
    for (const QString &example : matches(document(), R"(^```script\n((?:.|\n)*?)^```$)")) {
        QByteArray reply;
        for (const QString &line : example.split('\n', Qt::SkipEmptyParts)) {
            if (!line.startsWith("= ")) {
                reply = script.reply(line.toUtf8()).value_or(QByteArray());
                continue;
            }
            const auto expected = QJsonDocument::fromJson(line.mid(2).toUtf8());
            ASSERT_TRUE(expected.isObject()) << line.toStdString();
            EXPECT_TRUE(has(QJsonDocument::fromJson(reply).object(), expected.object()))
                << "shown:    " << line.toStdString() << "\nanswered: " << reply.toStdString();
            ++shown;
        }
    }
    EXPECT_GE(shown, 25);
    EXPECT_TRUE(script.allLinesKnown());
}

TEST(TheDocumentOfScripts, HasEveryRequestOnceAndNoOther)
{
    QStringList titles;
    for (const QString &title : matches(document(), "^### (.*)$"))
        titles += matches(title, "`(\\w+)`");
    QStringList requests = host::Script::requests();
    titles.sort();
    requests.sort();
    EXPECT_EQ(titles, requests);
}

TEST(TheDocumentOfScripts, HasEveryMemberOfEveryControlOfTheExample)
{
    ASSERT_TRUE(QDir::setCurrent(QN_SOURCE_DIR));
    host::Script script;
    script.reply(R"({"do":"open","ppd":"examples/ppd/full.ppd"})");
    const QJsonObject state =
        QJsonDocument::fromJson(script.reply(R"({"do":"state"})").value_or(QByteArray())).object();
    const QString text = document();
    for (const QJsonValue &panel : state["panels"].toObject())
        for (const QJsonValue &control : panel.toObject()["controls"].toObject())
            for (const QString &member : control.toObject().keys())
                EXPECT_TRUE(text.contains('`' + member + '`')) << member.toStdString();
}

} // namespace
