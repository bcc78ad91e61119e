// Opening what has to be a file.
#include "RegularFile.h"

#include <QCoreApplication>
#include <QTemporaryFile>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace foundation {

QString systemErrorText(int number) { return QString::fromLocal8Bit(std::strerror(number)); }

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
