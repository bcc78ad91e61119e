// What all places for jobs have in common.
#include "Job.h"

namespace host {

std::optional<QString> passOn(Document &document, const JobProgress &progress,
                              const std::function<std::optional<QString>(const QByteArray &part)> &write)
{
    qint64 done = 0;
    document.rewind();
    for (;;) {
        const auto part = document.read();
        if (!part)
            return document.title() + ": can't be read any more";
        if (part->isEmpty())
            return std::nullopt;
        if (const auto reason = write(*part))
            return reason;
        done += part->size();
        if (!progress(done, document.size()))
            return "stopped";
    }
}

} // namespace host
