#include "UnlockedDocument.h"

#include "ConfinedProgram.h"

#include "Foundation/RegularFile.h"

#include <QStandardPaths>

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <unistd.h>

namespace host {

using foundation::Or;
using foundation::Problem;

namespace {

constexpr auto kProgram = "qpdf";
constexpr qint64 kMebibyte = qint64{1024} * 1024;
constexpr Allowance kAllowance{1024 * kMebibyte, 1024 * kMebibyte, 120, std::chrono::seconds(180)};
constexpr qsizetype kLongestPassword = 1024; // bytes; a pipe takes them at once, and no document has as many

/// A pipe that a line has been written into, and nothing follows.
class PipedLine
{
public:
    explicit PipedLine(const QByteArray &line)
    {
        std::array<int, 2> ends{-1, -1};
        if (::pipe2(ends.data(), O_CLOEXEC) != 0)
            return;
        m_end = ends[0];
        m_isWhole = ::write(ends[1], line.constData(), static_cast<std::size_t>(line.size())) == line.size();
        ::close(ends[1]);
    }
    ~PipedLine() { ::close(m_end); }
    PipedLine(const PipedLine &) = delete;
    PipedLine &operator=(const PipedLine &) = delete;

    bool isWhole() const { return m_isWhole; }
    QString path() const { return pathOfDescriptor(m_end); }

private:
    int m_end = -1;
    bool m_isWhole = false;
};

/// As keyboards say accents, which is how they are stored.
QByteArray lineOf(const QString &password)
{
    return password.normalized(QString::NormalizationForm_C).toUtf8().left(kLongestPassword) + '\n';
}

/// The program says nothing of bytes that found no room on the disk, but writes this last.
bool isWhole(QFile &file)
{
    constexpr QByteArrayView kEnd("%%EOF\n");
    return file.seek(std::max<qint64>(0, file.size() - kEnd.size())) && file.readAll() == kEnd;
}

} // namespace

bool UnlockedDocument::isPossible() { return !QStandardPaths::findExecutable(kProgram).isEmpty(); }

Or<std::shared_ptr<Document>> UnlockedDocument::of(const Document &locked, const QString &password,
                                                   const std::stop_token &stop)
{
    const Problem failed{tr("%1: can't be unlocked; it is damaged, or too large").arg(locked.title())};
    auto file = foundation::openUnnamedFile();
    if (!file)
        return Problem{tr("%1: can't be unlocked: %2").arg(locked.title(), file.problem().sentence)};
    const PipedLine line(lineOf(password));
    if (!line.isWhole())
        return failed;
    ConfinedProgram unlocking(
        QStandardPaths::findExecutable(kProgram),
        {"--no-warn", "--warning-exit-0", "--password-file=-", "--decrypt", pathOfDescriptor(locked.descriptor()), "-"},
        {line.path(), pathOfDescriptor((*file)->handle()), locked.descriptor()}, kAllowance);
    const bool hasEnded = unlocking.output(stop).has_value();
    if (hasEnded && unlocking.status() == 0 && isWhole(**file))
        return Document::made(locked.title(), *std::move(file));
    if (unlocking.complaints().contains("invalid password"))
        return Problem{tr("%1: the password is wrong").arg(locked.title()), Problem::Kind::locked};
    return failed;
}

} // namespace host
