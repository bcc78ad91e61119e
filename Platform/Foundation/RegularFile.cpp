// Opening what has to be a file.
#include "RegularFile.h"

#include <QCoreApplication>
#include <QTemporaryFile>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace foundation {

namespace {

struct SystemError
{
    int number;
    const char *text;
};

/// What happens to people, in the words that terminals use. The system has them in the language of the environment,
/// which need not be that of the window.
constexpr std::array kSystemErrors{
    SystemError{ENOENT, QT_TRANSLATE_NOOP("foundation::SystemError", "No such file or directory")},
    SystemError{EACCES, QT_TRANSLATE_NOOP("foundation::SystemError", "Permission denied")},
    SystemError{EPERM, QT_TRANSLATE_NOOP("foundation::SystemError", "Operation not permitted")},
    SystemError{EISDIR, QT_TRANSLATE_NOOP("foundation::SystemError", "Is a directory")},
    SystemError{ENOTDIR, QT_TRANSLATE_NOOP("foundation::SystemError", "Not a directory")},
    SystemError{ENOSPC, QT_TRANSLATE_NOOP("foundation::SystemError", "No space left on device")},
    SystemError{EDQUOT, QT_TRANSLATE_NOOP("foundation::SystemError", "Disk quota exceeded")},
    SystemError{EFBIG, QT_TRANSLATE_NOOP("foundation::SystemError", "File too large")},
    SystemError{EROFS, QT_TRANSLATE_NOOP("foundation::SystemError", "Read-only file system")},
    SystemError{ENAMETOOLONG, QT_TRANSLATE_NOOP("foundation::SystemError", "File name too long")},
    SystemError{EMFILE, QT_TRANSLATE_NOOP("foundation::SystemError", "Too many open files")},
    SystemError{EIO, QT_TRANSLATE_NOOP("foundation::SystemError", "Input/output error")},
};

QString translated(const char *text) { return QCoreApplication::translate("foundation::SystemError", text); }

} // namespace

QString systemErrorText(int number)
{
    const auto *const known = std::ranges::find(kSystemErrors, number, &SystemError::number);
    return known == kSystemErrors.end() ? QString::fromLocal8Bit(std::strerror(number)) : translated(known->text);
}

/// Qt has the most common ones in English always.
QString fileErrorText(const QFileDevice &file)
{
    return file.error() == QFileDevice::NoError ? systemErrorText(errno)
                                                : translated(file.errorString().toUtf8().constData());
}

Or<std::unique_ptr<QFile>> openRegularFile(const QString &path)
{
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0)
        return Problem{QString("%1: %2").arg(path, systemErrorText(errno))};
    struct stat status = {};
    auto file = std::make_unique<QFile>();
    if (::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) &&
        file->open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return file;
    ::close(descriptor);
    return Problem{QCoreApplication::translate("foundation::RegularFile", "%1: not a file").arg(path)};
}

Or<std::unique_ptr<QFile>> openUnnamedFile()
{
    auto file = std::make_unique<QTemporaryFile>(); // readable by its owner only
    if (!file->open())
        return Problem{file->errorString()};
    if (::unlink(QFile::encodeName(file->fileName()).constData()) != 0)
        return Problem{systemErrorText(errno)};
    return std::unique_ptr<QFile>(std::move(file));
}

} // namespace foundation
