// Any lines as arguments of the command line: a dialog on what they ask for, or one sentence.
#include "Fuzzing.h"

#include "Jobs/PageRanges.h"
#include "PPD/PPDMarks.h"
#include "Program/CommandLine.h"

namespace {

/// What the options of the line become in a dialog.
void mark(const host::OptionValues &options)
{
    const auto ppd = host::PPDDocument::open(QN_EXAMPLES "/ppd/full.ppd");
    fuzzing::promise(static_cast<bool>(ppd));
    for (const QString &keyword : options.keys()) {
        const QString nearest = host::similarOption(keyword, {keyword, "QnMedia"});
        fuzzing::promise(nearest.isEmpty() || nearest == keyword);
    }
    host::PPDMarks marks(**ppd);
    marks.adoptDefaults(host::withMediaAsPageSize(options));
    marks.restore(options);
    fuzzing::promise(!marks.forJob().isEmpty());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    fuzzing::beginRun();
    const QStringList arguments = QString::fromUtf8(fuzzing::bytesOf(data, size)).split('\n');
    host::faceOf(arguments);
    const auto line = host::readCommandLine(arguments);
    if (!line) {
        fuzzing::promise(!line.problem().sentence.isEmpty());
        return 0;
    }
    const host::PrintRequest &request = line->request;
    fuzzing::promise(request.pages == host::readPageRanges(request.pages) && !request.options.contains(QString()));
    fuzzing::promise(request.queue.isEmpty() || request.ppd.isEmpty());
    line->environment.apply();
    if (!request.options.isEmpty())
        mark(request.options);
    return 0;
}
