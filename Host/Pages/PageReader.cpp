#include "PageReader.h"

#include <QDeadlineTimer>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

#include <array>
#include <csignal>
#include <sys/prctl.h>
#include <sys/resource.h>

namespace host {

using foundation::Or;
using foundation::Problem;

namespace {

constexpr auto kInfo = "pdfinfo";
constexpr int kMostPages = 100'000;
constexpr qint64 kMostInfoBytes = qint64{100} * kMostPages; // a page takes two short lines
constexpr int kLook = 20;                                   // ms between looks at whether anybody still wants the page

struct Limit
{
    __rlimit_resource resource;
    rlim_t value;
};
constexpr std::array kLimits{
    Limit{RLIMIT_AS, rlim_t{512} * 1024 * 1024}, // bytes
    Limit{RLIMIT_CPU, 20},                       // seconds
    Limit{RLIMIT_FSIZE, 0},                      // it writes into a pipe only
    Limit{RLIMIT_CORE, 0},
    Limit{RLIMIT_NOFILE, 64},
};

/// Between fork and exec: calls of the system only.
void confine()
{
    for (const Limit &limit : kLimits) {
        const rlimit both{limit.value, limit.value};
        ::setrlimit(limit.resource, &both);
    }
    ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
}

/// Ends with the object, whatever it is doing.
class Helper
{
public:
    Helper(const QString &program, const QStringList &arguments, const QString &document)
    {
        m_process.setChildProcessModifier(confine);
        m_process.setStandardInputFile(document);
        m_process.start(program, arguments, QIODevice::ReadOnly);
    }
    ~Helper()
    {
        m_process.kill();
        m_process.waitForFinished();
    }
    Helper(const Helper &) = delete;
    Helper &operator=(const Helper &) = delete;

    /// All that it writes; nil when that is too much or takes too long, and when nobody wants it any more.
    std::optional<QByteArray> output(qint64 mostBytes, const QDeadlineTimer &deadline, const std::stop_token &stop)
    {
        QByteArray output;
        while (m_process.state() != QProcess::NotRunning && !stop.stop_requested() && !deadline.hasExpired()) {
            m_process.waitForReadyRead(kLook);
            output += m_process.readAllStandardOutput();
            if (output.size() > mostBytes)
                return std::nullopt;
        }
        if (m_process.state() != QProcess::NotRunning)
            return std::nullopt;
        output += m_process.readAllStandardOutput();
        return output.size() > mostBytes ? std::nullopt : std::optional(std::move(output));
    }
    bool hasSucceeded() const { return m_process.exitStatus() == QProcess::NormalExit && m_process.exitCode() == 0; }
    QByteArray complaints() { return m_process.readAllStandardError(); }

private:
    QProcess m_process;
};

/// "Page    2 size:  595.28 x 841.89 pts (A4)" and "Page    2 rot:   90", in the order of the pages.
std::vector<QSizeF> readSizes(const QByteArray &info)
{
    static const QRegularExpression kLine(R"(^Page +\d+ (?:size: +([0-9.e+]+) x ([0-9.e+]+) pts|rot: +(\d+)))",
                                          QRegularExpression::MultilineOption);
    std::vector<QSizeF> sizes;
    for (auto lines = kLine.globalMatch(QString::fromLatin1(info)); lines.hasNext();) {
        const auto line = lines.next();
        if (line.hasCaptured(1))
            sizes.emplace_back(line.captured(1).toDouble(), line.captured(2).toDouble());
        else if (!sizes.empty() && line.captured(3).toInt() % 180 != 0)
            sizes.back().transpose();
    }
    return sizes;
}

/// A portable grey map: "P5", width, height, the level of white, and a byte a dot.
QImage readGreyMap(const QByteArray &map, QSize dots)
{
    const QByteArray header = QStringLiteral("P5\n%1 %2\n255\n").arg(dots.width()).arg(dots.height()).toLatin1();
    if (!map.startsWith(header) || map.size() != header.size() + qint64{dots.width()} * dots.height())
        return {};
    QImage picture(dots, QImage::Format_Grayscale8);
    for (int y = 0; y < dots.height(); ++y)
        std::copy_n(map.constData() + header.size() + qint64{y} * dots.width(), dots.width(),
                    reinterpret_cast<char *>(picture.scanLine(y)));
    return picture;
}

} // namespace

PageReader::PageReader(const Document &document, std::chrono::milliseconds patience)
    : m_title(document.title())
    , m_patience(patience)
    , m_path(QStringLiteral("/proc/self/fd/%1").arg(document.descriptor()))
{}

Or<QByteArray> PageReader::answerOf(const QString &program, const QStringList &arguments, qint64 mostBytes,
                                    const std::stop_token &stop) const
{
    const QString path = QStandardPaths::findExecutable(program);
    if (path.isEmpty())
        return Problem{tr("Pages can't be shown: %1 is missing (it is part of poppler-utils).").arg(program)};
    Helper helper(path, arguments, m_path);
    auto output = helper.output(mostBytes, QDeadlineTimer(m_patience), stop);
    if (!output)
        return Problem{tr("%1: the page takes too long, or too much memory, to be drawn").arg(m_title)};
    if (helper.hasSucceeded())
        return *std::move(output);
    return Problem{helper.complaints().contains("Incorrect password")
                       ? tr("%1: the document is locked with a password").arg(m_title)
                       : tr("%1: the document is damaged").arg(m_title)};
}

bool PageReader::isThere() { return !QStandardPaths::findExecutable(kInfo).isEmpty(); }

Or<std::vector<QSizeF>> PageReader::sizes(const std::stop_token &stop) const
{
    const QString all = QString::number(kMostPages + 1);
    const auto info = answerOf(kInfo, {"-f", "1", "-l", all, "-"}, kMostInfoBytes, stop);
    if (!info)
        return info.problem();
    auto sizes = readSizes(*info);
    if (sizes.empty())
        return Problem{tr("%1: the document has no pages").arg(m_title)};
    if (sizes.size() > kMostPages)
        return Problem{tr("%1: the document has too many pages").arg(m_title)};
    return sizes;
}

Or<QImage> PageReader::draw(int page, QSize dots, const std::stop_token &stop) const
{
    constexpr qint64 kHeader = 64;
    const QString number = QString::number(page);
    // A page that the document turns by itself is measured as it lies in the file: width and height change places.
    for (const QSize &asked : {dots, dots.transposed()}) {
        const auto map = answerOf("pdftoppm",
                                  {"-gray", "-cropbox", "-f", number, "-l", number, "-scale-to-x",
                                   QString::number(asked.width()), "-scale-to-y", QString::number(asked.height()), "-"},
                                  qint64{dots.width()} * dots.height() + kHeader, stop);
        if (!map)
            return map.problem();
        if (QImage picture = readGreyMap(*map, dots); !picture.isNull())
            return picture;
    }
    return Problem{tr("%1: page %2 can't be drawn").arg(m_title, number)};
}

} // namespace host
