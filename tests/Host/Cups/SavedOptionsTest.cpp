// What the user saves for queues, in the file that all CUPS programs share.
#include "Cups/SavedOptions.h"

#include "Print.h"
#include "Results.h"

#include "Printing/cups_api.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using host::OptionValues;
using host::SavedOptions;
using support::sentence;

namespace {

class Saved : public testing::Test
{
protected:
    void SetUp() override
    {
        qputenv("HOME", m_home.path().toUtf8());
        qputenv("CUPS_SERVERROOT", m_home.filePath("system").toUtf8());
        QDir(m_home.path()).mkpath("system");
    }
    void write(const QString &name, const QByteArray &content)
    {
        QDir(m_home.path()).mkpath(".cups");
        QFile file(m_home.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }
    QByteArray content() const
    {
        QFile file(m_home.filePath(".cups/lpoptions"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    /// What any CUPS program reads of it.
    static OptionValues asTheLibraryReads(const QByteArray &options)
    {
        cups_option_t *list = nullptr;
        const int count = cupsParseOptions(options.constData(), 0, &list);
        OptionValues values;
        for (int i = 0; i < count; ++i)
            values[QString::fromUtf8(list[i].name)] = QString::fromUtf8(list[i].value);
        cupsFreeOptions(count, list);
        return values;
    }

    QTemporaryDir m_home;
    SavedOptions m_saved{"counter"};
};

TEST_F(Saved, IsNothingInAPlaceThatIsNoFile)
{
    QDir(m_home.path()).mkpath(".cups");
    const QByteArray place = QFile::encodeName(m_home.filePath(".cups/lpoptions"));
    ASSERT_EQ(::mkfifo(place.constData(), 0600), 0); // whoever opened it would wait
    EXPECT_EQ(SavedOptions("counter").presets(), QStringList());
    EXPECT_FALSE(SavedOptions("counter").save("fine", {{"QnMedia", "Thermal"}}));
    ASSERT_EQ(::unlink(place.constData()), 0);
    ASSERT_EQ(::symlink("/dev/zero", place.constData()), 0); // or read without end
    EXPECT_EQ(SavedOptions("counter").presets(), QStringList());
}

TEST_F(Saved, AreNoneAtFirst)
{
    EXPECT_EQ(m_saved.presets(), QStringList());
    EXPECT_EQ(m_saved.options(), OptionValues());
}

TEST_F(Saved, ComeBackAsTheyWereSaved)
{
    const OptionValues options{{"PageSize", "RollA4"}, {"QnPaperFeed", "Custom.1.023622"}};
    EXPECT_TRUE(m_saved.save({}, options));
    EXPECT_TRUE(m_saved.save("express", {{"QnSpeed", "S3"}}));
    EXPECT_EQ(content(), "Dest counter PageSize=RollA4 QnPaperFeed=Custom.1.023622\nDest counter/express QnSpeed=S3\n");
    EXPECT_EQ(m_saved.options(), options);
    EXPECT_EQ(m_saved.options("express"), (OptionValues{{"QnSpeed", "S3"}}));
    EXPECT_EQ(m_saved.presets(), QStringList("express"));
    EXPECT_EQ(SavedOptions("other").presets(), QStringList());
}

TEST_F(Saved, LeaveEverythingElseOfTheFileAsItIs)
{
    write(".cups/lpoptions", "# mine\nDefault other/a job-sheets=none\nDest counter QnSpeed=S1\n"
                             "Dest counter/express QnSpeed=S2\nsomething else\nDest COUNTER/Express QnDensity=D1\n");
    EXPECT_TRUE(m_saved.save("express", {{"QnSpeed", "S3"}}));
    EXPECT_EQ(content(), "# mine\nDefault other/a job-sheets=none\nDest counter QnSpeed=S1\n"
                         "Dest counter/express QnSpeed=S3\nsomething else\n");
    EXPECT_TRUE(m_saved.remove("express"));
    EXPECT_EQ(content(), "# mine\nDefault other/a job-sheets=none\nDest counter QnSpeed=S1\nsomething else\n");
}

TEST_F(Saved, LeaveTheDefaultQueueTheDefault)
{
    write(".cups/lpoptions", "Default counter/express QnSpeed=S2\n");
    EXPECT_TRUE(m_saved.save("express", {{"QnSpeed", "S3"}}));
    EXPECT_EQ(content(), "Default counter/express QnSpeed=S3\n");
    EXPECT_TRUE(m_saved.remove("express"));
    EXPECT_EQ(content(), "Default counter\n");
}

TEST_F(Saved, OfTheUserCountForMoreThanThoseOfTheSystem)
{
    write("system/lpoptions", "Dest counter QnSpeed=S1 QnDensity=D2\nDest counter/all QnSpeed=S1\n");
    write(".cups/lpoptions", "Dest counter QnSpeed=S2\n");
    EXPECT_EQ(m_saved.options(), (OptionValues{{"QnSpeed", "S2"}, {"QnDensity", "D2"}}));
    EXPECT_EQ(m_saved.presets(), QStringList("all"));
}

TEST_F(Saved, AreNotDeletedWhereTheyAreTheSystems)
{
    const QByteArray systems = "Dest counter/All QnSpeed=S1\n";
    write("system/lpoptions", systems);
    for (const char *own : {"Dest counter/all QnSpeed=S2\n", ""}) {
        write(".cups/lpoptions", own);
        EXPECT_EQ(sentence(m_saved.remove("all")),
                  m_home.filePath("system/lpoptions: has the preset “all” for all users; it stays"));
        EXPECT_EQ(content(), "");
        EXPECT_EQ(m_saved.options("all"), (OptionValues{{"QnSpeed", "S1"}}));
    }
}

struct Value
{
    const char *text;
};
class SavedValues : public Saved, public testing::WithParamInterface<Value>
{};

TEST_P(SavedValues, AreReadByTheLibraryAsTheyWereMeant)
{
    const OptionValues options{{"first", QString::fromUtf8(GetParam().text)}, {"second", "2"}};
    ASSERT_TRUE(m_saved.save("x", options));
    EXPECT_EQ(m_saved.options("x"), options);
    EXPECT_EQ(asTheLibraryReads(content().mid(static_cast<int>(strlen("Dest counter/x ")))), options);
}

INSTANTIATE_TEST_SUITE_P(Of, SavedValues,
                         testing::Values(Value{"plain"}, Value{"two words"}, Value{"a\"quote"}, Value{"an'apostrophe"},
                                         Value{"back\\slash"}, Value{"{curly=1}"}, Value{"größer"}, Value{"1,2"},
                                         Value{"$(touch x)"}));

struct Name
{
    QString text;
    bool good;
};
class PresetNames : public testing::TestWithParam<Name>
{};

TEST_P(PresetNames, AreOneWordThatEveryProgramReads)
{
    EXPECT_EQ(bool(SavedOptions::checkName(GetParam().text)), GetParam().good);
}

INSTANTIATE_TEST_SUITE_P(Of, PresetNames,
                         testing::Values(Name{"express", true}, Name{"Übergröße", true}, Name{"a-b_c.1", true},
                                         Name{"", false}, Name{"two words", false}, Name{"a/b", false},
                                         Name{"a\nb", false}, Name{"a\"b", false}, Name{"a#b", false},
                                         Name{QString(127, 'x'), true}, Name{QString(128, 'x'), false}));

TEST_F(Saved, ArePrivate)
{
    ASSERT_TRUE(m_saved.save({}, {{"QnSpeed", "S1"}}));
    const auto others =
        QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
    EXPECT_EQ(QFileInfo(m_home.filePath(".cups")).permissions() & others, 0);
}

TEST_F(Saved, ArePutTogetherWhenTwoDialogsSaveAtOnce)
{
    constexpr int kTimes = 40;
    const auto saveAll = [](const QString &prefix) {
        const SavedOptions saved("counter");
        bool isSaved = true;
        for (int i = 0; i < kTimes; ++i) {
            isSaved = isSaved && saved.save(prefix + QString::number(i), {{"QnSpeed", "S1"}});
            isSaved = isSaved && saved.save("both", {{"QnSpeed", prefix}, {"QnDensity", prefix}});
        }
        return isSaved;
    };
    const pid_t other = ::fork(); // a process of its own, as the other dialog is
    ASSERT_GE(other, 0);
    if (other == 0)
        ::_exit(saveAll("other") ? 0 : 1);
    EXPECT_TRUE(saveAll("one"));
    int status = 0;
    ASSERT_EQ(::waitpid(other, &status, 0), other);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(m_saved.presets().size(), 2 * kTimes + 1);
    EXPECT_EQ(m_saved.options("other0"), (OptionValues{{"QnSpeed", "S1"}}));
    EXPECT_EQ(m_saved.options("one0"), (OptionValues{{"QnSpeed", "S1"}}));
    const OptionValues both = m_saved.options("both");
    EXPECT_EQ(both["QnSpeed"], both["QnDensity"]); // of one of them, not of both
    EXPECT_EQ(QDir(m_home.filePath(".cups")).entryList(QDir::Files | QDir::Hidden), QStringList("lpoptions"));
}

TEST_F(Saved, StayAsTheyWereWhenThereIsNoRoomForMore)
{
    ASSERT_TRUE(m_saved.save("old", {{"QnSpeed", "S1"}}));
    const QByteArray before = content();
    ASSERT_NE(std::signal(SIGXFSZ, SIG_IGN), SIG_ERR);
    rlimit limit{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &limit), 0);
    const rlimit small{64, limit.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
    const auto saved = m_saved.save("new", {{"QnSpeed", QString(1000, 'x')}});
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
    EXPECT_TRUE(sentence(saved).startsWith(m_home.filePath(".cups/lpoptions: "))) << sentence(saved).toStdString();
    EXPECT_EQ(content(), before);
}

TEST_F(Saved, SurviveWhateverTheFileHolds)
{
    const QByteArray odd =
        "Dest\nDest \nDest /x a=b\nDest counter/ a=b\ndefault\n\n   \nDest counter {a={b\nDest counter "
        "a=\"b\nDest counter =\nDest counter \\\nDest counter/\xff\xfe a=\xff\n" +
        QByteArray("Dest counter a=\0b", 17) + "\nDest counter/long " + QByteArray(100000, 'x') + "\n" +
        QByteArray(100000, '{');
    write(".cups/lpoptions", odd);
    EXPECT_FALSE(m_saved.presets().isEmpty());
    m_saved.options();
    for (const QString &name : m_saved.presets())
        m_saved.options(name);
    EXPECT_TRUE(m_saved.save("mine", {{"QnSpeed", "S1"}}));
    EXPECT_EQ(content(), odd + "\nDest counter/mine QnSpeed=S1\n"); // what is not understood is kept all the same
}

TEST_F(Saved, RefuseWordsThatOtherProgramsWouldCut)
{
    ASSERT_TRUE(SavedOptions("counter").save("kept", {{"a", "1"}}));
    for (const QChar end : {'\0', '\r', '\n'}) {
        const QString words = QString("two") + end + "parts";
        for (const OptionValues &options : {OptionValues{{"x", words}}, OptionValues{{words, "1"}}})
            EXPECT_TRUE(support::sentence(SavedOptions("counter").save("bad", options)).contains("line end"));
    }
    EXPECT_EQ(content(), "Dest counter/kept a=1\n");
}

TEST_F(Saved, RefuseAValueThatWouldBeMoreThanOneLine)
{
    ASSERT_TRUE(SavedOptions("counter").save("kept", {{"a", "1"}}));
    const auto saved = SavedOptions("counter").save("bad", {{"x", "a\nDest third y=1"}, {"tab", "1"}});
    EXPECT_TRUE(support::sentence(saved).contains("line end"));
    EXPECT_EQ(SavedOptions("counter").presets(), QStringList("kept"));
    EXPECT_EQ(SavedOptions("third").options(), OptionValues());
}

TEST_F(Saved, LeaveNoFileBehindNotEvenOneOfAnEarlierCrash)
{
    const QDir folder(QDir::homePath() + "/.cups");
    ASSERT_TRUE(QDir().mkpath(folder.path()));
    QFile left(folder.filePath("lpoptions.qnprint-new"));
    ASSERT_TRUE(left.open(QIODevice::WriteOnly) && left.write("half a li") > 0);
    left.close();
    ASSERT_TRUE(SavedOptions("counter").save("kept", {{"a", "1"}}));
    EXPECT_EQ(folder.entryList(QDir::Files | QDir::Hidden), QStringList("lpoptions"));
    EXPECT_EQ(SavedOptions("counter").options("kept"), (OptionValues{{"a", "1"}}));
}

TEST_F(Saved, GoIntoTheFileBehindALink)
{
    const QDir folder(QDir::homePath() + "/.cups");
    ASSERT_TRUE(QDir().mkpath(folder.path()));
    QFile real(folder.filePath("mine"));
    ASSERT_TRUE(real.open(QIODevice::WriteOnly));
    real.close();
    ASSERT_TRUE(QFile::link(real.fileName(), folder.filePath("lpoptions")));
    ASSERT_TRUE(SavedOptions("counter").save("kept", {{"a", "1"}}));
    EXPECT_TRUE(QFileInfo(folder.filePath("lpoptions")).isSymLink());
    EXPECT_GT(QFileInfo(real).size(), 0);
}

TEST_F(Saved, AreNotWrittenOverAFileThatCannotBeRead)
{
    QDir(m_home.path()).mkpath(".cups/lpoptions"); // a folder in its place
    EXPECT_EQ(sentence(m_saved.save({}, {{"QnSpeed", "S1"}})), m_home.filePath(".cups/lpoptions: can't be read"));
}

} // namespace
