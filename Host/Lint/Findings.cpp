// What was found in one PPD.
#include "Findings.h"

#include "Foundation/PlainText.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace host {

QString quoted(QByteArrayView bytes)
{
    constexpr qsizetype kLongest = 60;
    const QString text = foundation::plainLine(QString::fromUtf8(bytes.first(qMin(bytes.size(), 4 * kLongest))));
    return QString("\"%1\"").arg(text.size() > kLongest ? text.left(kLongest) + QChar(0x2026) : text);
}

void Findings::add(const char *check, int line, const QString &message, QByteArrayView option)
{
    add({.line = line, .check = check, .message = message, .option = QString::fromUtf8(option)});
}

/// A bundle is trusted to find, not to number.
void Findings::add(PDEFinding finding)
{
    finding.line = qMax(finding.line, 1);
    m_all.push_back(std::move(finding));
}

std::vector<PDEFinding> Findings::sorted() &&
{
    std::vector<std::size_t> order(m_all.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::sort(order, {}, [this](std::size_t i) { return std::pair(m_all[i].line, i); });
    std::vector<PDEFinding> sorted;
    sorted.reserve(m_all.size());
    for (const std::size_t i : order)
        sorted.push_back(std::move(m_all[i]));
    return sorted;
}

} // namespace host
