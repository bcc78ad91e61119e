// Damage at random: what lint does not find changes nothing that a person sees, and it is known why.
#include "Dialog.h"
#include "Lint.h"

#include "Lint/Statements.h"

#include <QJsonDocument>

#include <algorithm>
#include <random>

using namespace support;

namespace {

constexpr int kDamages = 200;
constexpr int kPerTest = 10;

/// What has happened to a file.
struct Damage
{
    QByteArray content;
    QByteArray line; // that it happened to
    QString what;
};

class Damager
{
public:
    explicit Damager(unsigned seed)
        : m_random(seed)
    {}
    Damage damage(const QByteArray &whole);

private:
    qsizetype below(qsizetype count) { return static_cast<qsizetype>(m_random() % static_cast<unsigned>(count)); }
    QByteArray damagedByte(const QByteArray &line, QString &what);
    static bool isForPeople(const QByteArray &line, qsizetype at);

    std::mt19937 m_random;
};

/// Letters of a text for people: with others in their place it is another text, and no program could tell.
bool Damager::isForPeople(const QByteArray &line, qsizetype at)
{
    const auto statements = host::statementsOf(line);
    if (statements.all.empty())
        return false;
    const PDEStatement &each = statements.all.front();
    static const QByteArrayList kNames{"FileVersion", "Manufacturer",  "Product",    "ModelName",
                                       "NickName",    "ShortNickName", "PCFileName", "PSVersion"};
    const auto holds = [&](QByteArrayView part) {
        return !part.isEmpty() && at >= part.data() - line.constData() &&
               at < part.data() + part.size() - line.constData();
    };
    return holds(each.text) || (kNames.contains(each.keyword.toByteArray()) && holds(each.value));
}

/// A byte lost, doubled, or another one. Within a text only such that can't be meant.
QByteArray Damager::damagedByte(const QByteArray &line, QString &what)
{
    QByteArray result = line;
    const qsizetype at = below(line.size());
    const qsizetype kind = isForPeople(line, at) ? 3 : below(4);
    const qsizetype code = line.indexOf(": \"<<");
    what = QString("%1 byte %2 %3")
               .arg(code > 0 && at > code ? "in code:" : "a")
               .arg(at)
               .arg(QStringList{"lost", "doubled", "another", "no text"}[kind]);
    switch (kind) {
    case 0: return result.remove(at, 1);
    case 1: return result.insert(at, line[at]);
    case 2: result[at] = static_cast<char>(' ' + below('~' - ' ')); return result;
    default: result[at] = below(2) ? '\xff' : '\x01'; return result;
    }
}

Damage Damager::damage(const QByteArray &whole)
{
    QByteArrayList lines = whole.split('\n');
    const qsizetype at = below(lines.size() - 1); // behind the last one there is nothing
    Damage result{.content = {}, .line = lines[at], .what = {}};
    switch (below(5)) {
    case 0:
        result.what = "line lost";
        lines.removeAt(at);
        break;
    case 1:
        result.what = "line doubled";
        lines.insert(at, lines[at]);
        break;
    case 2:
        result.what = "line cut";
        lines[at].truncate(below(lines[at].size()));
        break;
    default: lines[at] = damagedByte(lines[at], result.what); break;
    }
    result.content = lines.join('\n');
    return result;
}

/// What damage does that neither lint finds nor a person sees.
struct Unseen
{
    const char *what;      // has happened
    const char *beginning; // of the line
    const char *why;
};

constexpr std::array kUnseen{
    Unseen{"line doubled", "", "the line says the same again"},
    Unseen{"in code", "", "the code is the driver's, and no panel reads it"},
    Unseen{"", "*%", "it is a comment"},
    Unseen{"", "*ImageableArea", "within the paper one margin is as good as another, and no control shows it"},
    Unseen{"", "*OrderDependency:", "the order is that in which the driver sends its code"},
    Unseen{"", "*MaxMediaHeight:", "the limit stands in ParamCustomPageSize as well"},
    Unseen{"", "*ParamCustomPageSize Orientation:", "own sizes are never turned"},
    Unseen{"", "*HWMargins:", "the margins of own sizes are none, with the line or without"},
    Unseen{"", "*LeadingEdge", "the edge is the printer's matter"},
    Unseen{"",
           "*LandscapeOrientation:", "the panels have nothing that turns, and the preview turns as it does without"},
    Unseen{"", "*ColorDevice:", "the head is black in any case"},
    Unseen{"", "*DefaultColorSpace:", "the head is black in any case"},
    Unseen{"", "*cupsModelNumber:", "the number is the driver's"},
};

const char *whyUnseen(const Damage &damage)
{
    const auto *const row = std::ranges::find_if(kUnseen, [&](const Unseen &each) {
        return damage.what.startsWith(each.what) && damage.line.startsWith(each.beginning);
    });
    return row == kUnseen.end() ? nullptr : row->why;
}

class DamagedPPDs : public LintTest, public testing::WithParamInterface<int>
{
protected:
    /// All controls of both panels as a person sees them, on papers of each kind.
    QByteArray seen(const QByteArray &content)
    {
        const QString path = fileOf(content);
        Dialog dialog;
        QByteArray all;
        dialog.request({{"do", "open"}, {"ppd", path}, {"system", "10.5.0"}, {"uri", "usb://Qn"}, {"locale", "de_DE"}});
        for (const char *paper : {"A4", "PerfA4", "RollA4", "ContinuousLetter", "RetractA4", "Poster"}) {
            dialog.request({{"do", "paper"}, {"name", paper}});
            for (const char *panel : {"basic", "advanced"}) {
                dialog.request({{"do", "show"}, {"panel", panel}});
                dialog.request({{"do", "state"}, {"panel", panel}});
                const QJsonObject controls = dialog.reply()["panels"][panel]["controls"].toObject();
                all += QJsonDocument(controls).toJson(QJsonDocument::Compact) + '\n';
            }
        }
        return all;
    }
};

TEST_P(DamagedPPDs, AreFoundOrLookAsBefore)
{
    const QByteArray whole = fullPPD();
    const auto ofWhole = lint(whole).findings;
    const QByteArray before = seen(whole);
    for (int i = GetParam(); i < GetParam() + kPerTest; ++i) {
        const Damage damage = Damager(static_cast<unsigned>(i)).damage(whole);
        const auto findings = lint(damage.content).findings;
        const bool isFound = std::ranges::any_of(findings, [&](const PDEFinding &each) {
            return std::ranges::none_of(ofWhole,
                                        [&](const PDEFinding &other) { return each.message == other.message; });
        });
        if (isFound)
            continue;
        SCOPED_TRACE(testing::Message() << "seed " << i << ", " << damage.what.toStdString() << ": "
                                        << damage.line.toStdString());
        EXPECT_TRUE(seen(damage.content) == before); // too long to be shown
        EXPECT_TRUE(whyUnseen(damage)) << "nothing is found, and it is not known why nothing shows";
    }
}

INSTANTIATE_TEST_SUITE_P(From, DamagedPPDs, testing::Range(0, kDamages, kPerTest));

} // namespace
