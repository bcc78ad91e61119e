// qn-halftones OUTDIR: draws the sample pictures of the halftone preview, each with its variant for dense displays.

#include "Pictures.h"

#include "Halftone/Methods.h"

#include <QDir>
#include <QSaveFile>

#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace {

struct Picture
{
    const char *name;
    QImage (*method)(const QImage &);
};

constexpr Picture kPictures[] = {
    {"Binary", halftone::threshold},
    {"Dither", halftone::orderedDither},
    {"Diffusion", halftone::errorDiffusion},
};

constexpr int kWrongUse = 2;

// Replaces the file only once all of it is on disk: an interrupted build leaves no half picture behind.
bool write(const QImage &picture, const QString &path)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && picture.save(&file, "PNG") && file.commit())
        return true;
    std::fprintf(stderr, "qn-halftones: cannot write %s: %s\n", qPrintable(path), qPrintable(file.errorString()));
    return false;
}

bool writeBoth(const Picture &picture, const QImage &grey, const QDir &folder)
{
    const QString name = QString::fromLatin1(picture.name);
    const QImage dots = picture.method(grey);
    return write(dots, folder.filePath(name + ".png")) &&
           write(halftone::doubled(dots), folder.filePath(name + "@2x.png"));
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 2 || std::string_view(argv[1]).empty() || argv[1][0] == '-') {
        std::fputs("qn-halftones: name one folder to write the pictures into\n", stderr);
        return kWrongUse;
    }
    const QDir folder(QFile::decodeName(argv[1]));
    const QImage grey = halftone::picture(halftone::greySource());
    for (const Picture &picture : kPictures)
        if (!writeBoth(picture, grey, folder))
            return EXIT_FAILURE;
    return EXIT_SUCCESS;
}
