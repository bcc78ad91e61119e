// qnprint-manual FOLDER: writes the manual page and the completions, for the build.
#include "Manual.h"
#include "Usage.h"

#include <QDir>
#include <QSaveFile>

#include <array>
#include <cstdio>

namespace {

struct FileRow
{
    const char *name;
    QByteArray (*content)();
};
constexpr std::array kFileRows{
    FileRow{"qnprint.1", host::manualPage},
    FileRow{"qnprint.bash", host::bashCompletion},
    FileRow{"_qnprint", host::zshCompletion},
    FileRow{"qnprint.fish", host::fishCompletion},
};

/// The file is there as a whole or not at all: an interrupted build leaves no half one behind.
bool write(const QString &path, const QByteArray &content)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.commit())
        return true;
    std::fprintf(stderr, "qnprint-manual: %s: %s\n", qPrintable(path), qPrintable(file.errorString()));
    return false;
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 2) {
        std::fputs("qnprint-manual: name one folder to write into\n", stderr);
        return host::kWrongUse;
    }
    const QDir folder(QFile::decodeName(argv[1]));
    for (const FileRow &row : kFileRows)
        if (!write(folder.filePath(row.name), row.content()))
            return host::kRefused;
    return host::kDone;
}
