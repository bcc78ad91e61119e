// How much a PPD may hold. No printer's PPD comes near any of these.
#include "PPDLimits.h"

#include "Printing/ppd_api.h"

#include <QCoreApplication>
#include <QFile>

#include <array>
#include <memory>
#include <unistd.h>

namespace host {

using foundation::Or;
using foundation::Problem;

namespace {

constexpr qsizetype kMostBytes = qsizetype{16} * 1024 * 1024; // unpacked: the library reads compressed files too

struct Limit
{
    const char *lines; // how they begin
    const char *what;
    int most;
};

constexpr std::array kLimits{
    Limit{"*", QT_TRANSLATE_NOOP("host::PPDLimits", "keywords"), 50000},
    Limit{"*OpenUI ", QT_TRANSLATE_NOOP("host::PPDLimits", "options"), 4000},
    Limit{"*PageSize ", QT_TRANSLATE_NOOP("host::PPDLimits", "page sizes"), 4000},
    Limit{"*UIConstraints:", QT_TRANSLATE_NOOP("host::PPDLimits", "constraints"), 10000},
    Limit{"*NonUIConstraints:", QT_TRANSLATE_NOOP("host::PPDLimits", "constraints"), 10000},
    Limit{"*cupsUIConstraints ", QT_TRANSLATE_NOOP("host::PPDLimits", "constraints"), 10000},
};

struct FileCloser
{
    void operator()(cups_file_t *file) const { cupsFileClose(file); }
};

/// As the library reads it; no more than one byte too many.
QByteArray contentOf(const QFile &file)
{
    const std::unique_ptr<cups_file_t, FileCloser> reader(cupsFileOpenFd(::dup(file.handle()), "r"));
    QByteArray content;
    std::array<char, 65536> part{};
    for (ssize_t count = 1; reader && count > 0 && content.size() <= kMostBytes;) {
        count = cupsFileRead(reader.get(), part.data(), part.size());
        content.append(part.data(), qMax<ssize_t>(count, 0));
    }
    return content;
}

/// Lines end as on any system.
qsizetype countLines(const QByteArray &content, QByteArrayView beginning)
{
    qsizetype count = 0;
    for (qsizetype at = content.indexOf(beginning); at >= 0; at = content.indexOf(beginning, at + 1))
        count += at == 0 || content[at - 1] == '\n' || content[at - 1] == '\r' ? 1 : 0;
    return count;
}

} // namespace

Or<QByteArray> ppdContent(QFile &file)
{
    QByteArray content = contentOf(file);
    ::lseek(file.handle(), 0, SEEK_SET);
    if (content.size() > kMostBytes)
        return Problem{QCoreApplication::translate("host::PPDLimits", "the file is too large")};
    for (const Limit &limit : kLimits)
        if (content.size() > limit.most && countLines(content, limit.lines) > limit.most)
            return Problem{
                QCoreApplication::translate("host::PPDLimits", "more than %1 %2")
                    .arg(QString::number(limit.most), QCoreApplication::translate("host::PPDLimits", limit.what))};
    return content;
}

} // namespace host
