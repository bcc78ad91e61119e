// Checks of single options: flags, choices, and what the panels expect of them by position.
#include "Checks.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace checks {

namespace {

struct FlagRow
{
    const char *option;
    const char *flag;
    const char *consequence;
};

constexpr std::array kFlagRows{
    FlagRow{"QnDensity", "QnDensityObjHidden", "the density menu of the advanced panel stays grey"},
    FlagRow{"QnSpeed", "QnSpeedObjHidden", "the speed menu stays grey"},
    FlagRow{"QnMedia", "QnMediaObjHidden", "the media menu stays grey"},
    FlagRow{"QnFormFeedMode", "QnFormFeedModeObjHidden", "the form feed menu stays grey"},
    FlagRow{"QnPaperFeed", "QnPaperFeedObjHidden", "the label of the feed amount stays grey"},
    FlagRow{"QnPerforated", "QnPerforatedObjHidden", "the perforation menu of the basic panel stays grey"},
    FlagRow{"QnReversal", "QnReversalObjHidden", "the boxes for reversal and mirror stay grey"},
    FlagRow{"QnMirror", "QnMirrorObjHidden", "the heading of the boxes goes by QnReversalObjHidden alone"},
    FlagRow{"QnBiDiPrint", "QnBiDiPrintObjHidden",
            "the box for bi-directional print stays grey and the summary leaves it out"},
    FlagRow{"QnRollPrinterCase", "QnRollPrinterCaseHidden", "the menu of the roll printer case stays grey"},
};

/// What is written where another name is read.
constexpr auto kWrongCaseFlag = "QnRollPrinterCaseObjHidden";

} // namespace

void findHiddenFlags(File &file)
{
    for (const FlagRow &row : kFlagRows) {
        if (file.option(row.option))
            file.addIfContradicted(kHiddenFlag, row.flag, row.option);
        if (!file.option(row.option) || PDEUtilsMethod::isSupportedItem(file.ppd(), row.flag))
            continue;
        const auto value = PDEUtilsMethod::ppdAttrValStr(file.ppd(), row.flag);
        const QString wrong =
            value ? QString("is \"%1\" and not \"False\"").arg(value->left(40)) : QString("is missing");
        file.add(kHiddenFlag, file.lineOf(row.flag, row.option),
                 QString("%1 %2: %3").arg(row.flag, wrong, row.consequence), row.option);
    }
    if (const PDEStatement *const wrong = file.first(kWrongCaseFlag))
        file.add(kHiddenFlag, wrong->line,
                 QString("%1 is not read: the flag of the roll printer case is called QnRollPrinterCaseHidden")
                     .arg(kWrongCaseFlag),
                 "QnRollPrinterCase");
}

namespace {

constexpr std::array kBoxes{"QnPerforated", "QnReversal", "QnMirror", "QnBiDiPrint"};

bool isAmong(const QByteArray &word, std::initializer_list<const char *> words)
{
    return std::ranges::any_of(words, [&](const char *each) { return word.compare(each, Qt::CaseInsensitive) == 0; });
}
bool meansOn(const QByteArray &choice) { return isAmong(choice, {"on", "true", "yes", "1"}); }
bool meansOff(const QByteArray &choice) { return isAmong(choice, {"off", "false", "no", "none", "0"}); }

void findOffFirstOf(const char *keyword, const ppd_option_t &option, File &file)
{
    const auto choices = file.choices(option);
    if (choices.size() != 2)
        file.add(kOffFirst, file.lineOfOption(keyword),
                 QString("%1 has %2 choices and not two: its box shows and marks the first two only")
                     .arg(keyword)
                     .arg(choices.size()),
                 keyword);
    if (choices.size() < 2)
        return;
    if (meansOn(choices[0]) || meansOff(choices[1]))
        file.add(kOffFirst, file.lineOfChoice(keyword, choices[0]),
                 QString("%1 lists %2 before %3: the box is checked for what means off")
                     .arg(keyword, choices[0], choices[1]),
                 keyword);
    else if (qstrcmp(option.defchoice, choices[1]) == 0 && choices[1] != "ON")
        file.add(kOffFirst, file.lineOf((QByteArray("Default") + keyword).constData(), keyword),
                 QString("the default %1 of %2 is not called ON: the box is not checked at first, and %3 is marked")
                     .arg(choices[1], keyword, choices[0]),
                 keyword);
}

} // namespace

void findOffFirst(File &file)
{
    for (const char *keyword : kBoxes)
        if (const ppd_option_t *const option = file.option(keyword))
            findOffFirstOf(keyword, *option, file);
}

namespace {

struct CountRow
{
    const char *option;
    std::size_t least; // fewer are an error
    std::size_t most;  // and so are more
    std::size_t items; // that the menu has by itself
    const char *tooFew;
    const char *tooMany;
};

constexpr std::array kCountRows{
    CountRow{"QnFormFeedMode", 4, 4, 4, "the paper allows items that have no choice",
             "no paper allows those beyond the fourth"},
    CountRow{"QnHalftonePattern", 3, 3, 3, "a row of the panel has no choice and marks the last one",
             "there is no row for those beyond the third"},
    CountRow{"QnDensity", 0, kDensityKeys.size(), kDensityKeys.size(), "",
             "the basic panel has no item for those beyond the twelfth"},
    CountRow{"QnSpeed", 0, kSpeedKeys.size(), kSpeedKeys.size(), "", "those beyond the fifth have no fixed title"},
    CountRow{"QnRollPrinterCase", 0, kRollPrintKeys.size(), kRollPrintKeys.size(), "",
             "those beyond the fourth have no fixed title"},
    CountRow{"QnMedia", 0, SIZE_MAX, kMediaKeys.size(), "", ""},
    CountRow{"QnPerforated", 0, SIZE_MAX, kPerforatedKeys.size(), "", ""},
};

} // namespace

void findChoiceCounts(File &file)
{
    for (const CountRow &row : kCountRows) {
        const ppd_option_t *const option = file.option(row.option);
        const std::size_t count = option ? file.choices(*option).size() : row.least;
        if (count >= row.least && count <= row.most)
            continue;
        file.add(kChoiceCount, file.lineOfOption(row.option),
                 QString("%1 has %2 choices, %3 at %4 are served: %5")
                     .arg(row.option)
                     .arg(count)
                     .arg(count < row.least ? row.least : row.most)
                     .arg(count < row.least ? "least" : "most", count < row.least ? row.tooFew : row.tooMany),
                 row.option);
    }
}

void findFixedItems(File &file)
{
    for (const CountRow &row : kCountRows) {
        const ppd_option_t *const option = file.option(row.option);
        const std::size_t count = option ? file.choices(*option).size() : row.items;
        if (count < row.items && count >= row.least)
            file.add(kFixedItems, file.lineOfOption(row.option),
                     QString("%1 has %2 choices for a menu of %3 items: the others stay in it, and picking one does "
                             "nothing")
                         .arg(row.option)
                         .arg(count)
                         .arg(row.items),
                     row.option);
    }
}

namespace {

struct OrderRow
{
    const char *option;
    std::vector<const char *> words; // in keywords, in the order of the choices
    std::vector<QRegularExpression> inTexts = {};
    bool countsUpward = false; // numbers at the end of keywords do
};

const std::vector<OrderRow> &orderRows()
{
    const auto word = [](const char *beginning) {
        return QRegularExpression(QString("\\b") + beginning, QRegularExpression::CaseInsensitiveOption);
    };
    static const std::vector<OrderRow> rows{{"QnFormFeedMode",
                                             {"no", "fix", "end", "ret"},
                                             {word("(no|none)\\b"), word("fix"), word("end"), word("ret")},
                                             true},
                                            {"QnHalftonePattern",
                                             {"binary", "dither", "diffusion"},
                                             {word("binary"), word("dither"), word("(error )?diffusion")}},
                                            {"QnDensity", {}, {}, true},
                                            {"QnSpeed", {}, {}, true}};
    return rows;
}

/// "10" of "D10"; -1 without digits at the end.
int numberAtEnd(const QByteArray &keyword)
{
    qsizetype digits = 0;
    while (digits < keyword.size() && keyword[keyword.size() - 1 - digits] >= '0' &&
           keyword[keyword.size() - 1 - digits] <= '9')
        ++digits;
    return digits > 0 && digits < 6 ? keyword.last(digits).toInt() : -1;
}

bool mentions(const QByteArray &name, const char *word) { return name.toLower().contains(word); }

/// The first choice whose place another one has; empty when there is none.
QByteArray misplacedWord(const std::vector<QByteArray> &choices, const std::vector<const char *> &words)
{
    for (std::size_t i = 0; i < std::min(choices.size(), words.size()); ++i)
        for (std::size_t j = 0; j < words.size(); ++j)
            if (i != j && mentions(choices[i], words[j]) && !mentions(choices[i], words[i]))
                return choices[i];
    return {};
}

/// The first choice whose text says what another one is, which does not say so itself: texts are free, and one may
/// well mention its neighbour. Null when there is none.
const ppd_choice_t *misplacedText(const ppd_option_t &option, const std::vector<QRegularExpression> &words)
{
    const std::span choices(option.choices, static_cast<std::size_t>(option.num_choices));
    const auto says = [&](std::size_t i, std::size_t word) {
        return words[word].match(QString::fromUtf8(choices[i].text)).hasMatch();
    };
    for (std::size_t i = 0; i < std::min(choices.size(), words.size()); ++i)
        for (std::size_t j = 0; j < std::min(choices.size(), words.size()); ++j)
            if (i != j && says(i, j) && !says(i, i) && !says(j, j))
                return &choices[i];
    return nullptr;
}

QByteArray misplacedNumber(const std::vector<QByteArray> &choices)
{
    int last = -1;
    for (const QByteArray &each : choices) {
        const int number = numberAtEnd(each);
        if (number >= 0 && number <= last)
            return each;
        last = std::max(last, number);
    }
    return {};
}

} // namespace

void findChoiceOrder(File &file)
{
    for (const OrderRow &row : orderRows()) {
        const ppd_option_t *const option = file.option(row.option);
        if (!option)
            continue;
        const auto choices = file.choices(*option);
        const QByteArray word = misplacedWord(choices, row.words);
        const QByteArray misplaced = word.isEmpty() && row.countsUpward ? misplacedNumber(choices) : word;
        if (const ppd_choice_t *const told = misplaced.isEmpty() ? misplacedText(*option, row.inTexts) : nullptr)
            file.add(kChoiceOrder, file.lineOfChoice(row.option, told->choice),
                     QString("%1 of %2 says \"%3\", which the panels take for the choice of another position")
                         .arg(QString::fromUtf8(told->choice), row.option, QString::fromUtf8(told->text)),
                     row.option);
        if (!misplaced.isEmpty())
            file.add(kChoiceOrder, file.lineOfChoice(row.option, misplaced),
                     QString("%1 of %2 is out of order: the panels know it by its position, as another one")
                         .arg(misplaced, row.option),
                     row.option);
    }
}

void findSizeTypes(File &file)
{
    const ppd_option_t *const option = file.option(kSizeTypeOption);
    if (!option && file.isForPanels())
        return file.add(kSizeType, file.lineOfOption(kSizeTypeOption),
                        QString("%1 is missing: the printer is never told the kind of paper").arg(kSizeTypeOption),
                        kSizeTypeOption);
    const auto choices = option ? file.choices(*option) : std::vector<QByteArray>();
    for (const auto &row : paper::rows::kAvailability)
        if (option && std::ranges::find(choices, QByteArray(row.sizeType)) == choices.end())
            file.add(kSizeType, file.lineOfOption(kSizeTypeOption),
                     QString("%1 has no choice %2: on such paper the printer is told the kind of the paper before")
                         .arg(kSizeTypeOption, row.sizeType),
                     kSizeTypeOption);
}

} // namespace checks
