// The words are those of the Internet Printing Protocol; the choices of some are numbers with a name.
#include "OfferedOptions.h"

#include "Printing/cups_api.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <span>

namespace host {

namespace {

struct ChoiceRow
{
    const char *value;
    const char *text;
};

struct WordRow
{
    const char *word;
    const char *text;
    std::span<const ChoiceRow> choices; // as they are shown; others follow by their own names
};

constexpr std::array kSides{ChoiceRow{"one-sided", "Off (1-Sided)"},
                            ChoiceRow{"two-sided-long-edge", "Long-Edge (Portrait)"},
                            ChoiceRow{"two-sided-short-edge", "Short-Edge (Landscape)"}};
constexpr std::array kQualities{ChoiceRow{"3", "Draft"}, ChoiceRow{"4", "Normal"}, ChoiceRow{"5", "High"}};
constexpr std::array kColors{ChoiceRow{"auto", "Automatic"}, ChoiceRow{"color", "Color"},
                             ChoiceRow{"monochrome", "Grayscale"}, ChoiceRow{"bi-level", "Black and White"}};
constexpr std::array kOrientations{ChoiceRow{"3", "Portrait"}, ChoiceRow{"4", "Landscape"},
                                   ChoiceRow{"5", "Reverse Landscape"}, ChoiceRow{"6", "Reverse Portrait"},
                                   ChoiceRow{"7", "Automatic"}};

constexpr std::array kWords{
    WordRow{"sides", "2-Sided Printing", kSides}, WordRow{"print-quality", "Print Quality", kQualities},
    WordRow{"print-color-mode", "Color Mode", kColors}, WordRow{"orientation-requested", "Orientation", kOrientations}};

constexpr auto kPrefix = QLatin1String("server-");
constexpr ChoiceRow kOwnWay{"own", "Printer Default"}; // of the printer

constexpr auto kHead = R"(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*LanguageVersion: English
*LanguageEncoding: UTF-8
*OpenGroup: General/General
)";
constexpr auto kEnd = "*CloseGroup: General\n";

/// Numbers go by their names as well.
QString value(const QString &word, const QString &text)
{
    const bool isName = !text.isEmpty() && text.front().isLetter();
    const int number = isName ? ippEnumValue(word.toLatin1().constData(), text.toLower().toUtf8().constData()) : 0;
    return number > 0 ? QString::number(number) : text;
}

/// What can stand in a PPD as it is, and stays so: the library gives choices that begin with "Custom" other names.
bool isPlain(const QString &value)
{
    constexpr qsizetype kLongest = 40;
    static const QRegularExpression plain(
        QRegularExpression::anchoredPattern("(?![Cc][Uu][Ss][Tt][Oo][Mm])[A-Za-z0-9._-]+"));
    return value.size() <= kLongest && plain.match(value).hasMatch();
}

struct Choice
{
    QByteArray value;
    QByteArray text;
};

std::vector<Choice> choicesOf(const OfferedOption &offer, const WordRow &row)
{
    std::vector<Choice> choices;
    QStringList others = offer.choices;
    for (const ChoiceRow &each : row.choices)
        if (others.removeAll(QLatin1String(each.value)) > 0)
            choices.push_back({each.value, each.text});
    others.removeDuplicates();
    for (const QString &each : others)
        if (isPlain(each) && each != kOwnWay.value)
            choices.push_back({each.toLatin1(), each.toLatin1()});
    return choices;
}

QByteArray statements(const OfferedOption &offer, const WordRow &row)
{
    std::vector<Choice> choices = choicesOf(offer, row);
    if (choices.size() < 2)
        return {};
    auto standard = std::ranges::find(choices, offer.standard.toUtf8(), &Choice::value);
    if (standard == choices.end())
        standard = choices.insert(choices.begin(), {kOwnWay.value, kOwnWay.text});
    const QByteArray keyword = '*' + (kPrefix + row.word).toLatin1();
    QByteArray text =
        "*OpenUI " + keyword + '/' + row.text + ": PickOne\n*Default" + keyword.mid(1) + ": " + standard->value + '\n';
    for (const Choice &each : choices)
        text += keyword + ' ' + each.value + '/' + each.text + ": \"\"\n";
    return text + "*CloseUI: " + keyword + '\n';
}

} // namespace

QStringList wordsToOffer()
{
    QStringList words;
    for (const WordRow &each : kWords)
        words.append(each.word);
    return words;
}

QByteArray ppdOf(const OfferedOptions &offers)
{
    QByteArray options;
    for (const WordRow &row : kWords) {
        const auto offer = std::ranges::find(offers, QLatin1String(row.word), &OfferedOption::word);
        if (offer != offers.end())
            options += statements(*offer, row);
    }
    return options.isEmpty() ? options : kHead + options + kEnd;
}

QString offeredKeyword(const QString &word) { return kPrefix + word; }

OptionValues asOffered(const OptionValues &options)
{
    OptionValues offered;
    for (const auto &[word, text] : options.asKeyValueRange())
        offered.insert(offeredKeyword(word), value(word, text));
    return offered;
}

OptionValues asSaid(const OptionValues &marks)
{
    OptionValues said;
    for (const auto &[keyword, choice] : marks.asKeyValueRange())
        if (keyword.startsWith(kPrefix) && choice != kOwnWay.value)
            said.insert(keyword.mid(kPrefix.size()), choice);
    return said;
}

} // namespace host
