// Whether the document goes with the job.
#include "DocumentCheck.h"

#include "Foundation/Locale.h"
#include "Jobs/PageRanges.h"
#include "Pages/Placement.h"
#include "Printing/Units.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace host {

using foundation::Or;

namespace {

constexpr double kNoDifference = 3 * printing::kPointsPerMillimetre; // a person would not call it another paper
constexpr double kSameSize = 1 * printing::kPointsPerMillimetre;

double inUsersUnit(double points)
{
    return points / (foundation::IsMetric() ? printing::kPointsPerMillimetre : printing::kPointsPerInch);
}

QString number(double points)
{
    constexpr int kMostDigits = 9;
    const double steps = foundation::IsMetric() ? 1 : 100; // a unit
    return foundation::Locale::current().locale().toString(std::round(inUsersUnit(points) * steps) / steps, 'g',
                                                           kMostDigits);
}

QString unit() { return foundation::IsMetric() ? QStringLiteral("mm") : QStringLiteral("in"); }

bool isNear(QSizeF one, const printing::Paper &other)
{
    return std::abs(one.width() - other.width) <= kSameSize && std::abs(one.height() - other.height) <= kSameSize;
}

bool isWithin(QSizeF size, const std::optional<CustomSizeLimits> &limits)
{
    return limits && size.width() >= limits->smallest.width && size.width() <= limits->largest.width &&
           size.height() >= limits->smallest.height && size.height() <= limits->largest.height;
}

} // namespace

DocumentCheck::DocumentCheck(PrintDialog &dialog)
    : m_dialog(dialog)
{
    connect(&dialog, &PrintDialog::documentsChanged, this, &DocumentCheck::begin);
    connect(&dialog, &PrintDialog::stateChanged, this, &DocumentCheck::compare);
    connect(&dialog, &PrintDialog::targetChanged, this, &DocumentCheck::compare);
    connect(&dialog, &PrintDialog::settingsChanged, this, &DocumentCheck::compare);
    begin();
}

std::optional<int> DocumentCheck::pages() const
{
    return m_sizes.empty() ? std::nullopt : std::optional(static_cast<int>(m_sizes.size()));
}

void DocumentCheck::begin()
{
    const auto &documents = m_dialog.documents();
    auto first = documents.empty() ? nullptr : documents.front();
    if (first == m_document)
        return;
    m_document = std::move(first);
    m_sizes.clear();
    m_work.requestStop();
    m_isReading = false;
    compare();
    if (!m_document || m_document->format() != "application/pdf" || !PageReader::isThere())
        return;
    m_isReading = true;
    m_work = BackgroundWork(
        *this,
        [document = m_document](const std::stop_token &stop) {
            return std::pair(document, PageReader(*document).sizes(stop));
        },
        [this](std::pair<std::shared_ptr<Document>, Or<std::vector<QSizeF>>> read) {
            end(read.first, std::move(read.second));
        });
}

void DocumentCheck::end(const std::shared_ptr<Document> &document, Or<std::vector<QSizeF>> sizes)
{
    if (document != m_document)
        return; // another one has been chosen since
    m_isReading = false;
    if (!sizes) {
        m_dialog.say(About::document, sizes.problem().sentence);
        if (sizes.problem().kind == foundation::Problem::Kind::locked)
            Q_EMIT locked(sizes.problem().sentence);
        return;
    }
    m_sizes = *std::move(sizes);
    compare();
}

void DocumentCheck::compare()
{
    m_remedy.reset();
    if (m_dialog.state() == PrintDialog::State::sending)
        return Q_EMIT changed(); // nothing of it can be changed now
    const QString pages = comparePages();
    if (!pages.isEmpty() || m_saysPages) // others say something there as well
        m_dialog.say(About::pages, pages);
    m_saysPages = !pages.isEmpty();
    m_dialog.say(About::fit, compareSizes());
    Q_EMIT changed();
}

QString DocumentCheck::comparePages() const
{
    const auto ranges = readPageRanges(m_dialog.amount().pages);
    if (m_sizes.empty() || !ranges || pagesAmong(*ranges, static_cast<int>(m_sizes.size())))
        return {};
    return m_sizes.size() == 1 ? tr("The document has only one page.")
                               : tr("The document has only %1 pages.").arg(m_sizes.size());
}

/// Of the page that differs first. One that is shorter than the paper just leaves some of it white.
QString DocumentCheck::compareSizes()
{
    const auto sheet = m_dialog.target() ? m_dialog.target()->sheet() : std::nullopt;
    if (!sheet || m_dialog.target()->scaling() == Scaling::fit || m_dialog.target()->scaling() == Scaling::fill)
        return {};
    for (const QSizeF &page : m_sizes) {
        const QSizeF size = turnedFor(*sheet, page);
        const bool isOtherWidth = std::abs(size.width() - sheet->size.width) > kNoDifference;
        if (!isOtherWidth && size.height() <= sheet->size.height + kNoDifference)
            continue;
        m_remedy = remedyFor(page, *sheet);
        if (size != page) // which of its sides is its width depends on how one holds it
            return tr("The document is %1 × %2 %3, the paper %4 × %5.", "width, height, unit, width, height")
                .arg(number(page.width()), number(page.height()), unit(), number(sheet->size.width),
                     number(sheet->size.height));
        const QString form = isOtherWidth ? tr("The document is %1 %3 wide, the paper %2.")
                                          : tr("The document is %1 %3 long, the paper %2.");
        return form.arg(number(isOtherWidth ? size.width() : size.height()),
                        number(isOtherWidth ? sheet->size.width : sheet->size.height), unit());
    }
    return {};
}

DocumentCheck::Remedy DocumentCheck::remedyFor(QSizeF page, const Sheet &sheet) const
{
    for (const QSizeF size : {page, turnedFor(sheet, page)})
        for (const PaperEntry &paper : m_dialog.target()->papers())
            if (isNear(size, paper.size))
                return {tr("Use %1", "a paper").arg(paper.text), ChosenPaper{paper.name, paper.size}};
    for (const QSizeF size : {page, page.transposed()})
        if (isWithin(size, m_dialog.target()->customSizeLimits()))
            return {
                tr("Use %1 × %2 %3", "width, height, unit").arg(number(size.width()), number(size.height()), unit()),
                ChosenPaper{printing::kUserDefinedPaper, printing::Paper{size.width(), size.height()}}};
    return {tr("Fit to Paper"), std::nullopt};
}

void DocumentCheck::takeRemedy()
{
    if (!m_remedy)
        return;
    if (const auto paper = m_remedy->paper)
        m_dialog.choosePaper(*paper);
    else
        m_dialog.setScaling(Scaling::fit);
}

} // namespace host
