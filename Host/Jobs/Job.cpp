// What all places for jobs have in common.
#include "Job.h"

#include <QRegularExpression>

#include <algorithm>

namespace host {

std::optional<int> readCopies(const QString &text)
{
    bool isNumber = false;
    const int copies = text.toInt(&isNumber);
    return isNumber && copies >= 1 && copies <= kMostCopies ? std::optional(copies) : std::nullopt;
}

std::optional<QString> readPageRanges(const QString &text)
{
    static const QRegularExpression form(R"(^\s*(\d{1,9})(?:\s*-\s*(\d{1,9}))?\s*$)");
    if (text.trimmed().isEmpty())
        return QString();
    std::vector<std::pair<int, int>> ranges;
    for (const QString &part : text.split(',')) {
        const auto match = form.match(part);
        const int first = match.captured(1).toInt();
        const int last = match.captured(2).isEmpty() ? first : match.captured(2).toInt();
        if (!match.hasMatch() || first < 1 || last < first)
            return std::nullopt;
        ranges.emplace_back(first, last);
    }
    std::ranges::sort(ranges);
    QStringList parts;
    for (std::size_t i = 0; i < ranges.size();) {
        auto [first, last] = ranges[i];
        for (++i; i < ranges.size() && ranges[i].first <= last + 1; ++i)
            last = std::max(last, ranges[i].second);
        parts.append(first == last ? QString::number(first) : QString("%1-%2").arg(first).arg(last));
    }
    return parts.join(',');
}

std::optional<QString> passOn(Document &document, const JobProgress &progress,
                              const std::function<std::optional<QString>(const QByteArray &part)> &write)
{
    qint64 done = 0;
    document.rewind();
    for (;;) {
        const auto part = document.read();
        if (!part)
            return JobSink::tr("%1: can't be read any more").arg(document.title());
        if (part->isEmpty())
            return std::nullopt;
        if (auto reason = write(*part))
            return reason;
        done += part->size();
        if (!progress(done, document.size()))
            return JobSink::tr("stopped");
    }
}

} // namespace host
