// What all places for jobs have in common.
#include "Job.h"

namespace host {

using foundation::Or;
using foundation::Problem;

Or<void> streamDocument(Document &document, const JobProgress &progress, const std::stop_token &stop,
                        const std::function<Or<void>(const QByteArray &part)> &write)
{
    qint64 done = 0;
    document.rewind();
    for (;;) {
        const auto part = document.read();
        if (!part)
            return Problem{JobSink::tr("%1: can't be read any more").arg(document.title())};
        if (part->isEmpty() && (done == 0 || document.hasChanged()))
            return Problem{JobSink::tr("%1: has changed while it was printed").arg(document.title())};
        if (part->isEmpty())
            return {};
        if (auto written = write(*part); !written)
            return written;
        done += part->size();
        progress(done, document.size());
        if (stop.stop_requested())
            return Problem{JobSink::tr("cancelled; nothing was printed")};
    }
}

} // namespace host
