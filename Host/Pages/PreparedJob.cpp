#include "PreparedJob.h"

#include "ArrangedPages.h"
#include "LaidOut.h"
#include "PrintedPages.h"

namespace host {

using foundation::Or;
using foundation::Problem;

namespace {

constexpr auto kPDF = "application/pdf";

/// The pages of a job whose document is a PDF, put on sheets; options that would have it done once more go.
Or<Job> arranged(Job job, const Sheet &sheet, Scaling scaling, const PrintedPages &pages, const std::stop_token &stop)
{
    if (!pages.standAsTheyAre(sheet)) {
        auto document = ArrangedPages::of(*job.document, sheet, scaling, job.pages, stop);
        if (!document)
            return document.problem();
        job.document = *std::move(document);
    }
    job.pages.clear();
    job.options.remove(kPrintScaling);
    for (const char *option : kOlderScalings)
        job.options.remove(option);
    return job;
}

Or<Job> prepared(Job job, const Preparation &how, const std::stop_token &stop)
{
    if (how.sheet) {
        auto document = laidOut(job.document, *how.sheet, stop);
        if (!document)
            return document.problem();
        job.document = *std::move(document);
    }
    if (job.document->format() != kPDF || !PageReader::isThere())
        return job;
    const auto pages = PrintedPages::of(job.document, how.sheet.value_or(Sheet()), how.scaling, job.pages, stop);
    if (!pages)
        return pages.problem();
    return how.sheet && how.isLeftToUs ? arranged(std::move(job), *how.sheet, how.scaling, *pages, stop)
                                       : Or<Job>(std::move(job));
}

} // namespace

Or<Job> preparedJob(Job job, const Preparation &how, const std::stop_token &stop)
{
    const auto original = job.document;
    original->rewind();
    auto result = prepared(std::move(job), how, stop);
    if (stop.stop_requested())
        return Problem{JobSink::tr("cancelled; nothing was printed"), Problem::Kind::unanswered};
    if (result && original->hasChanged())
        return Problem{JobSink::tr("%1: has changed while it was printed").arg(original->title())};
    return result;
}

} // namespace host
