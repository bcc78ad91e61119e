// A person at random: thousands of events over papers and printers, and after each what must always hold.
#include "Dialog.h"
#include "Results.h"

#include <QFile>
#include <QJsonDocument>

#include <random>

using namespace support;

namespace {

constexpr int kEvents = 1500;

struct Walk
{
    const char *name;
    unsigned seed;
    QString (*ppd)();
};

QString allOptions() { return PPDText().allOptions().file(); }
QString fullExample() { return QN_SOURCE_DIR "/examples/ppd/full.ppd"; }
QString reducedExample() { return QN_SOURCE_DIR "/examples/ppd/reduced.ppd"; }
QString japaneseExample() { return QN_SOURCE_DIR "/examples/ppd/japanese.ppd"; }

QString choicesOf(int count)
{
    PPDText::Choices choices;
    for (int i = 0; i < count; ++i)
        choices.emplace_back("C" + QByteArray::number(i), "Choice " + QByteArray::number(i));
    PPDText ppd;
    for (const char *keyword : {"QnDensity", "QnSpeed", "QnMedia", "QnFormFeedMode", "QnPaperFeed", "QnPerforated",
                                "QnHalftonePattern", "QnReversal", "QnMirror", "QnBiDiPrint", "QnRollPrinterCase"})
        ppd.option(keyword, keyword, count > 0 ? "C0" : "", choices);
    for (const char *flag : {"QnDensityObjHidden", "QnSpeedObjHidden", "QnMediaObjHidden", "QnFormFeedModeObjHidden",
                             "QnPaperFeedObjHidden", "QnPerforatedObjHidden", "QnReversalObjHidden",
                             "QnMirrorObjHidden", "QnBiDiPrintObjHidden", "QnRollPrinterCaseHidden"})
        ppd.attribute(flag, "False");
    return ppd.file();
}

void PrintTo(const Walk &row, std::ostream *out) { *out << row.name << ", seed " << row.seed; }

class WalkTest : public DialogTest, public testing::WithParamInterface<Walk>
{
protected:
    int below(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(count)); }
    template <class Container>
    auto any(const Container &container)
    {
        return container[static_cast<std::size_t>(below(static_cast<int>(std::size(container))))];
    }
    QString anyPanel() { return below(2) ? "basic" : "advanced"; }
    QString onDisplay() const { return state("basic")["display"].toString(); }

    QJsonObject anyEvent();
    QString anyControl(const QString &panel);
    void readChoices(const QString &path);
    void check();
    void checkPanel(const QString &panel, const QJsonObject &shown, const QJsonObject &marked);
    void checkFormFeedMenu(const QString &panel);

    std::mt19937 m_random;
    QMap<QString, QStringList> m_choices; // of every option
    QString m_paper;
};

void WalkTest::readChoices(const QString &path)
{
    const auto ppd = value(host::PPDDocument::open(path));
    for (int i = 0; i < ppd->file()->num_groups; ++i)
        for (int j = 0; j < ppd->file()->groups[i].num_options; ++j) {
            const ppd_option_t &option = ppd->file()->groups[i].options[j];
            for (int k = 0; k < option.num_choices; ++k)
                m_choices[option.keyword].append(option.choices[k].choice);
        }
}

QString WalkTest::anyControl(const QString &panel)
{
    const QStringList names = state(panel)["panels"][panel].toObject()["controls"].toObject().keys();
    return names.isEmpty() ? QString("mMediaPopUp") : names[below(static_cast<int>(names.size()))];
}

QJsonObject WalkTest::anyEvent()
{
    static const QStringList papers{
        "A4",         "Letter",        "Legal",        "A5",         "A5Rotated",  "PerfA4",
        "PerfLetter", "PerfLegal",     "RollA4",       "RollLetter", "RollLegal",  "ContinuousLetter",
        "RetractA4",  "RetractLetter", "RetractLegal", "Poster",     "customsize", "a4"};
    static const QStringList texts{"", "1", "26", "51", "52", ".5", "0", "05", "abc", "1.2.3", "999", "2.0", "a."};
    const QString shown = onDisplay().isEmpty() ? "basic" : onDisplay();
    const QJsonObject used{{"panel", shown}, {"control", anyControl(shown)}};
    const auto with = [&](QJsonObject event, const QString &verb, const QString &member, const QJsonValue &value) {
        event["do"] = verb;
        if (!member.isEmpty())
            event[member] = value;
        return event;
    };
    switch (below(16)) {
    case 0:
    case 1: return {{"do", "show"}, {"panel", anyPanel()}};
    case 2: return {{"do", "hide"}};
    case 3:
    case 4:
    case 5: return with(used, "pick", "index", below(12));
    case 6: return with(used, "click", {}, {});
    case 7: return with(used, "row", "row", below(3));
    case 8: return with({{"panel", "basic"}, {"control", "mPaperFeedTxt"}}, "type", "text", any(texts));
    case 9: return with({{"panel", "basic"}, {"control", "mPaperFeedStepper"}}, "step", "by", below(2) ? 1 : -1);
    case 10: return with({{"panel", "basic"}, {"control", "mFormFeedModePopUp"}}, "pick", "index", below(4));
    case 11:
    case 12: m_paper = any(papers); return {{"do", "paper"}, {"name", m_paper}, {"width", 300}, {"height", 400}};
    case 13: {
        const QString key = any(m_choices.keys());
        return {{"do", "mark"}, {"key", key}, {"choice", key == "PageSize" ? QString("A4") : any(m_choices[key])}};
    }
    case 14: return {{"do", below(2) ? "save" : "restore"}, {"panel", anyPanel()}};
    default: return {{"do", "print"}};
    }
}

void WalkTest::check()
{
    const QJsonObject all = [this] {
        request({{"do", "state"}});
        return reply();
    }();
    ASSERT_TRUE(all["ok"].toBool());
    const QJsonObject marked = all["marked"].toObject();
    for (auto mark = marked.begin(); mark != marked.end(); ++mark) {
        const QString value = mark.value().toString();
        EXPECT_TRUE(value.startsWith("Custom.") || m_choices[mark.key()].contains(value))
            << mark.key().toStdString() << '=' << value.toStdString();
    }
    for (const char *panel : {"basic", "advanced"})
        checkPanel(panel, all["panels"].toObject()[panel].toObject(), marked);
    const QString memo = all["defaults"].toObject()["QnPerforated"].toString();
    EXPECT_TRUE(memo.isEmpty() || memo == "YES" || memo == "NO") << memo.toStdString();
}

void WalkTest::checkPanel(const QString &panel, const QJsonObject &shown, const QJsonObject &marked)
{
    static const QMap<QString, QString> kKeywords{{"mDensity_Selection", "QnDensity"},
                                                  {"mSpeed_Selection", "QnSpeed"},
                                                  {"mMedia_Selection", "QnMedia"},
                                                  {"mFormFeedMode_Selection", "QnFormFeedMode"},
                                                  {"mPaperFeed_Selection", "QnPaperFeed"},
                                                  {"mPerforated_Selection", "QnPerforated"},
                                                  {"mHalftone_Selection", "QnHalftonePattern"},
                                                  {"mReversal_Selection", "QnReversal"},
                                                  {"mMirror_Selection", "QnMirror"},
                                                  {"mBiDiPrint_Selection", "QnBiDiPrint"},
                                                  {"mRollPrint_Selection", "QnRollPrinterCase"}};
    for (const auto &[field, keyword] : kKeywords.asKeyValueRange()) {
        const QJsonValue selection = shown["selections"].toObject()[field];
        const QString choice = marked[keyword].toString().section('.', 0, 0);
        EXPECT_EQ(selection.toString(choice), choice) // what a panel believes is what is marked
            << panel.toStdString() << ' ' << field.toStdString();
    }
    const QJsonObject amount = shown["controls"].toObject()["mPaperFeedTxt"].toObject();
    const bool neverTyped = m_paper.startsWith("Perf") || m_paper.startsWith("Retract");
    EXPECT_FALSE(neverTyped && amount["editable"].toBool()) << m_paper.toStdString();
    EXPECT_LE(amount["text"].toString().size(), 3);
    const double steps = shown["controls"].toObject()["mPaperFeedStepper"].toObject()["value"].toDouble();
    EXPECT_TRUE(steps >= 0 && steps <= 99) << steps;

    // A summary says of every choice with a text what is marked.
    const QJsonObject entries = summary(panel);
    const QString media = marked["QnMedia"].toString();
    const QString expected = media == "Thermal" ? "Thermal Paper" : "Thermal Copy Paper";
    EXPECT_EQ(entries["Paper Type"].toString(),
              GetParam().ppd == allOptions ? expected : entries["Paper Type"].toString());
    EXPECT_TRUE(marks().empty());
}

void WalkTest::checkFormFeedMenu(const QString &panel)
{
    request({{"do", "menu"}, {"panel", panel}, {"control", "mFormFeedModePopUp"}});
    if (!reply()["ok"].toBool())
        return;
    use(panel);
    const int perforated = selected("mPerforatedPopUp");
    QString expected = perforated == 1 ? "-+--" : "+++-"; // papers of other names
    if (m_paper.startsWith("Perf"))
        expected = "--+-";
    else if (m_paper.startsWith("Roll"))
        expected = perforated == 1 ? "-+--" : "++--";
    else if (m_paper.startsWith("Continuous"))
        expected = "+---";
    else if (m_paper.startsWith("Retract"))
        expected = "---+";
    else if (QStringList{"A4", "Letter", "Legal", "A5", "A5Rotated"}.contains(m_paper))
        expected = "+++-";
    EXPECT_EQ(available("mFormFeedModePopUp").left(4), expected.left(available("mFormFeedModePopUp").size()))
        << m_paper.toStdString();
}

TEST_P(WalkTest, KeepsWhatMustAlwaysHold)
{
    m_random.seed(GetParam().seed);
    const QString path = GetParam().ppd();
    readChoices(path);
    m_paper = "A4";
    openFile(path, {{"paper", "A4"},
                    {"uri", "usb://Qn"},
                    {"system", "10.5.0"},
                    {"locale", GetParam().seed % 2 ? "en_US" : "de_DE"}});
    for (int i = 0; i < kEvents && !HasFailure(); ++i) {
        const QJsonObject event = anyEvent();
        SCOPED_TRACE(testing::Message() << "seed " << GetParam().seed << ", event " << i << ": "
                                        << QJsonDocument(event).toJson(QJsonDocument::Compact).toStdString());
        request(event);
        EXPECT_TRUE(event["do"] != "restore" || marks().empty());
        check();
        if (i % 8 == 0 && onDisplay() == "basic")
            checkFormFeedMenu("basic");
    }
}

INSTANTIATE_TEST_SUITE_P(Printers, WalkTest,
                         testing::Values(Walk{"AllOptions", 1, allOptions}, Walk{"AllOptionsAgain", 2, allOptions},
                                         Walk{"FullExample", 3, fullExample}, Walk{"FullExampleAgain", 4, fullExample},
                                         Walk{"ReducedExample", 5, reducedExample},
                                         Walk{"JapaneseExample", 6, japaneseExample},
                                         Walk{"NoChoices", 7, [] { return choicesOf(0); }},
                                         Walk{"OneChoice", 8, [] { return choicesOf(1); }},
                                         Walk{"NineChoices", 9, [] { return choicesOf(9); }}),
                         [](const auto &row) { return std::string(row.param.name); });

} // namespace
