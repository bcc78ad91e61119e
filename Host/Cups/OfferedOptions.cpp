// The words are those of the Internet Printing Protocol; the choices of some are numbers with a name.
#include "OfferedOptions.h"

#include "Printing/cups_api.h"

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
    std::span<const ChoiceRow> choices; // as they are shown; a person would not know what any other does
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
    const int number = ippEnumValue(word.toLatin1().constData(), text.toUtf8().constData());
    return number > 0 ? QString::number(number) : text;
}

std::vector<ChoiceRow> choicesOf(const OfferedOption &offer, const WordRow &row)
{
    std::vector<ChoiceRow> choices;
    std::ranges::copy_if(row.choices, std::back_inserter(choices),
                         [&](const ChoiceRow &each) { return offer.choices.contains(QLatin1String(each.value)); });
    return choices;
}

QByteArray statements(const OfferedOption &offer, const WordRow &row)
{
    std::vector<ChoiceRow> choices = choicesOf(offer, row);
    auto standard =
        std::ranges::find(choices, offer.standard, [](const ChoiceRow &each) { return QString(each.value); });
    if (choices.size() < 2)
        return {};
    if (standard == choices.end())
        standard = choices.insert(choices.begin(), kOwnWay);
    const QByteArray keyword = '*' + (kPrefix + row.word).toLatin1();
    QByteArray text =
        "*OpenUI " + keyword + '/' + row.text + ": PickOne\n*Default" + keyword.mid(1) + ": " + standard->value + '\n';
    for (const ChoiceRow &each : choices)
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
