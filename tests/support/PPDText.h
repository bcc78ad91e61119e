// PPD files made for one test: a small valid printer, and the lines that matter.
#pragma once

#include <QByteArray>
#include <QString>

#include <utility>
#include <vector>

namespace support {

class PPDText
{
public:
    using Choices = std::vector<std::pair<QByteArray, QByteArray>>; // keyword, text

    /// A printer with the page sizes A4 (595 x 842), RollA4 and the others of `paperNames`, default A4, and custom
    /// sizes from 72 x 72 to 612 x 3600 points.
    PPDText();

    /// `standard` is the declared default; empty declares none.
    PPDText &option(const QByteArray &keyword, const QByteArray &text, const QByteArray &standard,
                    const Choices &choices);
    PPDText &attribute(const QByteArray &name, const QByteArray &value); // *Name: "value"
    PPDText &line(const QByteArray &line);                               // as it stands
    PPDText &customPageRange(int leastWidth, int largestWidth, int leastHeight, int largestHeight);

    /// Every Qn option with its hidden flag "False"; keywords as in the example PPDs.
    PPDText &allOptions();
    /// One of those, with its hidden flag.
    PPDText &standardOption(const QByteArray &keyword);
    /// QnPaperFeed with its custom option: inches 0.03937 to 2.00788 first, then mm 1 to 51.
    PPDText &paperFeed();

    QByteArray text() const;
    /// Writes the file and answers its path; it lives until the process ends.
    QString file() const;

private:
    QByteArray m_pageRange;
    QByteArray m_lines;
};

/// Every paper name that the panels know, in the order of their groups.
const std::vector<QByteArray> &paperNames();

} // namespace support
