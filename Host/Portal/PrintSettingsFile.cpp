#include "PrintSettingsFile.h"

#include "ApplicationSettings.h"
#include "KeyFile.h"

#include "Foundation/RegularFile.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <unistd.h>

namespace host {

using foundation::Or;
using foundation::Problem;

namespace {

constexpr qint64 kLargestFile = qint64{1} << 20;
constexpr auto kSettings = "Print Settings";
constexpr auto kSetup = "Page Setup";
constexpr auto kJob = "Print Job";

} // namespace

Or<DialogWish> readPrintSettings(const QString &path, QString &title)
{
    auto opened = foundation::openRegularFile(path);
    if (!opened)
        return opened.problem();
    const KeyFile file((*opened)->read(kLargestFile));
    QVariantMap settings;
    for (const QString &key : file.keys(kSettings))
        settings[key] = *file.value(kSettings, key);
    if (settings.isEmpty())
        return Problem{QString("%1: there are no print settings in it").arg(path)};
    DialogWish wish;
    readSettings(harmlessSettings(settings), wish);
    wish.pages.clear();
    // The pages are laid out for it already.
    if (const QString paper = file.value(kSetup, "PPDName").value_or(QString()); !paper.isEmpty())
        wish.options[kPageSize] = paper;
    title = jobTitle(file.value(kJob, "title").value_or(QString()), {});
    return wish;
}

void removeTemporary(const QString &path)
{
    static const QRegularExpression kName(R"(\A(preview|settings)\w{6}(\.pdf|\.ini)\z)");
    const QFileInfo file(path);
    const bool isTheirs = file.dir() == QDir::temp() && kName.match(file.fileName()).hasMatch();
    if (isTheirs && file.isFile() && !file.isSymLink() && file.ownerId() == ::getuid())
        QFile::remove(path);
}

} // namespace host
