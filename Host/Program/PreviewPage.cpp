// A page of a job as a picture: the dialog without a face, asked what will come out.
#include "OpenDialog.h"
#include "PictureFile.h"

#include "Dialog/PrintDialog.h"
#include "Pages/PrintedPages.h"

#include <QEventLoop>

namespace host {

using foundation::Or;
using foundation::Problem;

namespace {

/// Until there is a printer, or can't be one.
Or<void> waitForPrinter(PrintDialog &dialog)
{
    if (auto started = dialog.start(); !started)
        return started;
    if (dialog.state() == PrintDialog::State::looking) {
        QEventLoop loop;
        QObject::connect(&dialog, &PrintDialog::stateChanged, &loop, &QEventLoop::quit);
        loop.exec();
    }
    return dialog.state() == PrintDialog::State::noPrinter ? Or<void>(dialog.problem()) : Or<void>();
}

Or<QImage> pictureOf(const CommandLine &line, PrintDialog &dialog)
{
    if (const auto ready = waitForPrinter(dialog); !ready)
        return ready.problem();
    PrintTarget &target = *dialog.target();
    dialog.prepareAll();
    for (const QString &doubt : target.doubts())
        complain(doubt);
    const auto sheet = target.sheet();
    if (!sheet)
        return Problem{QString("%1: the size of the paper is not known").arg(target.name())};
    const auto pages =
        PrintedPages::of(dialog.documents().front(), *sheet, target.scaling(), dialog.amount().pages, {});
    if (!pages)
        return pages.problem();
    if (line.page > pages->count())
        return Problem{pages->count() == 1
                           ? QString("--page %1: only one page is printed").arg(line.page)
                           : QString("--page %1: only %2 pages are printed").arg(line.page).arg(pages->count())};
    for (const QString &unseen : target.unseen())
        complain(QString("not in this picture: %1").arg(unseen));
    const SheetDots dots(*sheet, target.resolution());
    auto grey = pages->sheet(line.page - 1, dots, {});
    if (!grey || line.plain)
        return grey;
    return dots.burnt(*grey, target.printEffect());
}

} // namespace

int previewPage(const CommandLine &line)
{
    if (line.files.size() != 2) {
        complain("preview: needs a document and the name of one picture");
        return kWrongUse;
    }
    PrintDialog dialog(line.request, nullptr);
    dialog.chooseDocuments(line.files.first(1));
    if (dialog.documents().empty()) {
        complain(dialog.message());
        return kRefused;
    }
    const auto picture = pictureOf(line, dialog);
    const auto written = picture ? PictureFile::write(*picture, line.files.last()) : Or<void>(picture.problem());
    if (written)
        return kDone;
    complain(written.problem().sentence);
    return kRefused;
}

} // namespace host
