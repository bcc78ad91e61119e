// How much of a document is printed.
#include "PageRanges.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <utility>
#include <vector>

namespace host {

namespace {

using Ranges = std::vector<std::pair<int, int>>; // first and last page

/// As written, part by part; nil when a part is no range.
std::optional<Ranges> readParts(const QString &text)
{
    static const QRegularExpression form(R"(^\s*(\d{1,9})(?:\s*-\s*(\d{1,9}))?\s*$)");
    Ranges ranges;
    for (const QString &part : text.split(',')) {
        const auto match = form.match(part);
        const int first = match.captured(1).toInt();
        const int last = match.captured(2).isEmpty() ? first : match.captured(2).toInt();
        if (!match.hasMatch() || first < 1 || last < first)
            return std::nullopt;
        ranges.emplace_back(first, last);
    }
    return ranges;
}

Ranges merged(Ranges ranges)
{
    std::ranges::sort(ranges);
    Ranges result;
    for (const auto &[first, last] : ranges) {
        if (!result.empty() && first <= result.back().second + 1)
            result.back().second = std::max(result.back().second, last);
        else
            result.emplace_back(first, last);
    }
    return result;
}

} // namespace

std::optional<int> readCopies(const QString &text)
{
    bool isNumber = false;
    const int copies = text.toInt(&isNumber);
    return isNumber && copies >= 1 && copies <= kMaximumCopies ? std::optional(copies) : std::nullopt;
}

std::optional<QString> readPageRanges(const QString &text)
{
    if (text.trimmed().isEmpty())
        return QString();
    const auto ranges = readParts(text);
    if (!ranges)
        return std::nullopt;
    QStringList parts;
    for (const auto &[first, last] : merged(*ranges))
        parts.append(first == last ? QString::number(first) : QString("%1-%2").arg(first).arg(last));
    return parts.join(',');
}

std::optional<std::vector<int>> pagesAmong(const QString &ranges, int count)
{
    std::vector<int> pages;
    for (const auto &[first, last] : ranges.isEmpty() ? Ranges{{1, count}} : readParts(ranges).value_or(Ranges())) {
        if (last > count)
            return std::nullopt;
        for (int page = first; page <= last; ++page)
            pages.push_back(page);
    }
    return pages;
}

} // namespace host
