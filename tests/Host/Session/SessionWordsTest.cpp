// What a session says to a person: amounts, differences, and choices that are not as they were made.
#include "PPDText.h"
#include "Print.h"
#include "Results.h"

#include "Foundation/UserDefaults.h"
#include "Session/DialogSession.h"
#include "Session/Environment.h"
#include "Window/WindowTexts.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using host::DialogSession;
using support::PPDText;
using support::value;

namespace {

class WordsOfASession : public testing::Test
{
protected:
    ~WordsOfASession() override
    {
        m_session.reset();
        foundation::Locale::current().set(m_locale);
        host::useWindowTexts("en");
    }
    void open(const PPDText &ppd, const QString &locale = "de_DE")
    {
        m_session.reset();
        foundation::Locale::current().set(QLocale(locale));
        DialogSession::Parameters parameters;
        parameters.ppdPath = ppd.file();
        parameters.bundlePath = QN_BUNDLE_DIR;
        m_session = value(DialogSession::open(parameters));
        m_session->start(DialogSession::Prepare::everyPanel);
        m_session->takeRemarks();
    }
    QStringList differences() const
    {
        QStringList rows;
        for (const host::SummaryRow &each : m_session->differences())
            rows.append(each.title + ": " + each.value);
        return rows;
    }

    QTemporaryDir m_folder;
    foundation::ScopedDefaults m_defaults{m_folder.filePath("defaults.ini")};
    QLocale m_locale = foundation::Locale::current().locale();
    std::unique_ptr<DialogSession> m_session;
};

TEST_F(WordsOfASession, NameWhatAPanelTakesCareOfAndIsNotThePPDsOwn)
{
    open(PPDText().allOptions());
    ASSERT_TRUE(m_session->mark("QnDensity", "D2"));
    m_session->changePaper(m_session->paperNamed("Letter"));
    EXPECT_EQ(differences(), QStringList({"Print Density: Level 2", "Paper Feed: 26 mm"}));
}

TEST_F(WordsOfASession, SayAnAmountInTheUnitOfTheCountry)
{
    open(PPDText().paperFeed(), "de_DE");
    EXPECT_EQ(differences(), QStringList("Paper Feed: 26 mm"));
    open(PPDText().paperFeed(), "en_US");
    ASSERT_TRUE(m_session->mark("QnPaperFeed", "1.025"));
    EXPECT_EQ(differences(), QStringList("Paper Feed: 1.025 in"));
}

TEST_F(WordsOfASession, SayAnAmountOfAnUnknownUnitAsThePPDDoes)
{
    open(PPDText()
             .standardOption("QnPaperFeed")
             .line("*CustomQnPaperFeed True: \"x\"")
             .line("*ParamCustomQnPaperFeed QnPaperFeed: 1 real 0.03937 2.00788"));
    EXPECT_EQ(differences(), QStringList("Paper Feed: Custom.1.02362"));
}

TEST_F(WordsOfASession, SayWhatComesWithAPaper)
{
    for (const auto &[language, said] :
         {std::pair("en", "RollA4 comes with: Paper Type “Thermal Paper”, Print Speed “Use Printer Setting”."),
          std::pair("de", "Zu RollA4 gehört: Paper Type “Thermal Paper”, Print Speed “Use Printer Setting”.")}) {
        host::useWindowTexts(language);
        open(PPDText()
                 .allOptions()
                 .line("*UIConstraints: *PageSize RollA4 *QnMedia ThermalCopy")
                 .line("*UIConstraints: *PageSize RollA4 *QnSpeed S3"));
        ASSERT_TRUE(m_session->mark("QnMedia", "ThermalCopy"));
        ASSERT_TRUE(m_session->mark("QnSpeed", "S3"));
        m_session->changePaper(m_session->paperNamed("RollA4"));
        EXPECT_EQ(m_session->takeRemarks().value(0), said);
    }
}

TEST_F(WordsOfASession, SayNothingOfAChoiceThatIsBackWhereItWas)
{
    open(PPDText().allOptions().line("*UIConstraints: *QnMedia ThermalCopy *QnSpeed S3"));
    ASSERT_TRUE(m_session->mark("QnSpeed", "S3"));
    ASSERT_TRUE(m_session->mark("QnMedia", "ThermalCopy"));
    ASSERT_TRUE(m_session->mark("QnSpeed", "S3"));
    EXPECT_EQ(
        m_session->takeRemarks(),
        QStringList("Paper Type “Thermal Paper” instead of “Thermal Copy Paper”, to go with Print Speed “Fastest”."));
    EXPECT_EQ(m_session->takeRemarks(), QStringList());
}

TEST_F(WordsOfASession, AreNotNeededForAPaperOfItsOwnSize)
{
    open(PPDText().allOptions());
    m_session->restore({{"PageSize", "Custom.400x500"}});
    EXPECT_EQ(m_session->paper().name, printing::kUserDefinedPaper);
    ASSERT_TRUE(m_session->paper().size);
    EXPECT_EQ(m_session->paper().size->width, 400);
    EXPECT_EQ(m_session->paper().size->height, 500);
    EXPECT_EQ(m_session->takeRemarks(), QStringList());
}

TEST(ALocale, IsKnownByItsNameAndCToo)
{
    EXPECT_EQ(host::knownLocale("de_AT"), QLocale(QLocale::German, QLocale::Austria));
    EXPECT_EQ(host::knownLocale("C"), QLocale::c());
    EXPECT_EQ(host::knownLocale(""), std::nullopt);
    EXPECT_EQ(host::knownLocale("nowhere"), std::nullopt);
}

} // namespace
