// Whether the lines of a PPD go together.
#include "CommonChecks.h"

#include "PPD/CustomValue.h"

#include "Foundation/Text.h"

#include <QSet>

#include <algorithm>
#include <array>
#include <iterator>

namespace host {

namespace {

/// A value that goes on over a line that begins as a statement has lost a quotation mark. No PostScript begins so.
bool swallowsStatements(QByteArrayView value)
{
    const QByteArray bytes = QByteArray::fromRawData(value.data(), value.size());
    return bytes.contains("\n*") || bytes.contains("\r*");
}

/// Of a value that has lost its first one, the last one is there.
bool hasOneMark(QByteArrayView value) { return std::ranges::count(value, '"') % 2 == 1; }

void findLostMarks(const CheckedText &text, Findings &findings)
{
    for (const PDEStatement &each : text.index.all()) {
        if (each.value.isNull() && each.keyword != "End")
            findings.add(check::kStructure, each.line,
                         QString("*%1 has no colon and so no value: it counts for nothing")
                             .arg(QString::fromUtf8(each.keyword).left(40)));
        if (each.value.startsWith(':'))
            findings.add(check::kStructure, each.line,
                         QString("*%1 has two colons: the second one is read as part of the value")
                             .arg(QString::fromUtf8(each.keyword).left(40)));
        if (swallowsStatements(each.value) || hasOneMark(each.value))
            findings.add(check::kStructure, each.line,
                         QString("the value of *%1 has one quotation mark: the lines below it are read as part of it")
                             .arg(QString::fromUtf8(each.keyword).left(40)));
    }
}

/// What is read while going through the options of a file.
struct Opened
{
    const PDEStatement *statement = nullptr;
    QByteArrayView keyword;
    QSet<QByteArrayView> choices;
};

void findSecondChoice(Opened &opened, const PDEStatement &each, Findings &findings)
{
    if (!opened.statement || each.keyword != opened.keyword || each.option.isEmpty())
        return;
    if (opened.choices.contains(each.option))
        findings.add(check::kStructure, each.line,
                     QString("the choice %1 stands twice: the menu has it once, and what follows it moves up")
                         .arg(quoted(each.option)),
                     opened.keyword);
    opened.choices.insert(each.option);
}

/// Lines that stand where no option is open, although they begin as choices of one do.
void findStray(const Opened &opened, const PDEStatement &each, const CheckedText &text, Findings &findings)
{
    const bool isChoice = !each.option.isEmpty() && text.ppd.hasOption(QString::fromUtf8(each.keyword));
    if (isChoice && each.keyword != opened.keyword)
        findings.add(
            check::kStructure, each.line,
            QString("a choice of %1 stands outside of its option: it is left out").arg(QString::fromUtf8(each.keyword)),
            each.keyword);
}

void findUnpaired(const CheckedText &text, Findings &findings)
{
    const auto notEnded = [&findings](const Opened &opened) {
        findings.add(check::kStructure, opened.statement->line,
                     QString("the option %1 is not ended by a *CloseUI of its own").arg(quoted(opened.keyword)),
                     opened.keyword);
    };
    Opened opened;
    QSet<QByteArrayView> options;
    for (const PDEStatement &each : text.index.all()) {
        if (const QByteArrayView keyword = openedBy(each); !keyword.isNull()) {
            if (opened.statement)
                notEnded(opened);
            if (options.contains(keyword))
                findings.add(check::kStructure, each.line, QString("the option %1 begins twice").arg(quoted(keyword)),
                             keyword);
            options.insert(keyword);
            opened = {&each, keyword, {}};
        } else if (const QByteArrayView closed = closedBy(each); !closed.isNull()) {
            if (closed == opened.keyword)
                opened = {};
            else
                findings.add(check::kStructure, each.line,
                             QString("*%1 ends %2, which is not the option that is open")
                                 .arg(QString::fromUtf8(each.keyword), quoted(closed)),
                             closed);
        }
        findSecondChoice(opened, each, findings);
        findStray(opened, each, text, findings);
    }
    if (opened.statement)
        notEnded(opened);
}

void findSecondDefaults(const CheckedText &text, Findings &findings)
{
    for (const ppd_option_t *option : text.ppd.options()) {
        const auto &all = text.index.of(QByteArray("Default") + option->keyword);
        for (std::size_t i = 1; i < all.size(); ++i)
            findings.add(check::kStructure, all[i]->line,
                         QString("the default of %1 stands twice: the last one counts").arg(option->keyword),
                         QByteArrayView(option->keyword));
    }
}

} // namespace

void findStructure(const CheckedText &text, Findings &findings)
{
    findLostMarks(text, findings);
    findUnpaired(text, findings);
    findSecondDefaults(text, findings);
}

namespace {

/// The tables of page sizes, besides the one that people choose from, and how many numbers each gives.
struct SizeTable
{
    const char *keyword;
    int numbers;
    const char *without; // what follows where a page size is not in it
};
constexpr std::array kSizeTables{
    SizeTable{"PageRegion", 0, "it can't be fed by hand"},
    SizeTable{"ImageableArea", 4, "its margins are not known"},
    SizeTable{"PaperDimension", 2, "it has no size, and can't be printed on"},
};

/// Empty where these are not so many numbers.
std::vector<double> numbersIn(QByteArrayView value, int count)
{
    const QStringList words = QString::fromUtf8(value).split(' ', Qt::SkipEmptyParts);
    std::vector<double> numbers;
    if (words.size() == count && std::ranges::all_of(words, isPlainDecimal))
        std::ranges::transform(words, std::back_inserter(numbers), foundation::doubleValue);
    return numbers;
}

/// Left, bottom, right and top that leave nothing, or that the paper does not have.
bool isOffPaper(const PDEStatement &area, const CheckedText &text)
{
    const PDEStatement *const dimension = text.index.first("PaperDimension", area.option);
    const auto paper = numbersIn(dimension ? dimension->value : QByteArrayView(), 2);
    const auto sides = numbersIn(area.value, 4);
    return !paper.empty() && (sides[0] >= sides[2] || sides[1] >= sides[3] || sides[0] < 0 || sides[1] < 0 ||
                              sides[2] > paper[0] || sides[3] > paper[1]);
}

void findInTable(const SizeTable &table, const QSet<QByteArrayView> &sizes, const CheckedText &text, Findings &findings)
{
    QSet<QByteArrayView> listed;
    for (const PDEStatement *each : text.index.of(table.keyword)) {
        listed.insert(each->option);
        if (!sizes.contains(each->option))
            findings.add(check::kPageSize, each->line,
                         QString("*%1 has %2, which PageSize does not list: nobody can choose it")
                             .arg(table.keyword, quoted(each->option)),
                         table.keyword);
        else if (table.numbers > 0 && numbersIn(each->value, table.numbers).empty())
            findings.add(check::kPageSize, each->line,
                         QString("*%1 of %2 is not %3 numbers: %4")
                             .arg(table.keyword, quoted(each->option), QString::number(table.numbers), table.without),
                         table.keyword);
        else if (table.numbers == 4 && isOffPaper(*each, text))
            findings.add(check::kPageSize, each->line,
                         QString("*%1 of %2 is not within its paper: the preview shows other margins than there are")
                             .arg(table.keyword, quoted(each->option)),
                         table.keyword);
    }
    for (const PDEStatement *each : text.index.of("PageSize"))
        if (!each->option.isEmpty() && !listed.contains(each->option))
            findings.add(
                check::kPageSize, each->line,
                QString("the page size %1 is not in *%2: %3").arg(quoted(each->option), table.keyword, table.without),
                "PageSize");
}

} // namespace

void findPageSizes(const CheckedText &text, Findings &findings)
{
    QSet<QByteArrayView> sizes;
    for (const PDEStatement *each : text.index.of("PageSize"))
        sizes.insert(each->option);
    if (sizes.isEmpty())
        findings.add(check::kPageSize, 1, "the PPD has no page sizes: no paper can be chosen", "PageSize");
    for (const SizeTable &table : kSizeTables)
        findInTable(table, sizes, text, findings);
}

namespace {

/// "*Option", and the choice behind it where one is given.
void findUnknownInConstraint(const PDEStatement &statement, const CheckedText &text, Findings &findings)
{
    const QStringList words = QString::fromUtf8(statement.value).split(' ', Qt::SkipEmptyParts);
    QSet<QString> options; // with itself nothing is in conflict
    for (qsizetype i = 0; i < words.size(); ++i) {
        if (!words[i].startsWith('*'))
            continue;
        const QString keyword = words[i].mid(1);
        const bool isCustom = keyword.startsWith("Custom") && text.ppd.hasOption(keyword.mid(6));
        options.insert(isCustom ? keyword.mid(6) : keyword);
        const ppd_option_t *const option = text.ppd.option(isCustom ? keyword.mid(6) : keyword);
        const QString choice = i + 1 < words.size() && !words[i + 1].startsWith('*') ? words[i + 1] : QString();
        if (!option)
            findings.add(check::kConstraint, statement.line,
                         QString("the constraint is about %1, an option that the PPD does not have: it never holds")
                             .arg(quoted(keyword.toUtf8())));
        else if (!choice.isEmpty() && !isCustom && !text.index.first(option->keyword, choice.toUtf8()))
            findings.add(
                check::kConstraint, statement.line,
                QString("the constraint is about %1 of %2, a choice that the PPD does not have: it never holds")
                    .arg(quoted(choice.toUtf8()), keyword),
                QByteArrayView(option->keyword));
    }
    if (options.size() < 2)
        findings.add(check::kConstraint, statement.line, "the constraint is not about two options: it never holds");
}

} // namespace

void findConstraints(const CheckedText &text, Findings &findings)
{
    for (const char *keyword : {"UIConstraints", "cupsUIConstraints"})
        for (const PDEStatement *each : text.index.of(keyword))
            findUnknownInConstraint(*each, text, findings);
}

} // namespace host
