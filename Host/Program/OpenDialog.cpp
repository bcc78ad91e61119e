// The window from the command line, and its picture.
#include "OpenDialog.h"

#include "Cups/Conversation.h"
#include "Interrupts.h"
#include "PictureDifferences.h"
#include "Window/DialogWindow.h"
#include "Window/Notification.h"
#include "Window/WindowTexts.h"

#include <QApplication>
#include <QFileInfo>
#include <QImageReader>

namespace host {

namespace {

/// What a person does not read on a terminal, the window shows as well: it opens whatever is wrong with a file.
void tellOnTerminal(const PrintDialog &dialog)
{
    for (const QString &sentence : dialog.message().split('\n', Qt::SkipEmptyParts))
        complain(sentence);
}

void tellWhatBecomesOfJobs(const PrintDialog &dialog)
{
    QObject::connect(&dialog, &PrintDialog::printed, [](const QString &where, const QString &fate) {
        report(where);
        if (!fate.isEmpty())
            notify(fate);
    });
}

} // namespace

void interrupt(DialogWindow &window, PrintDialog &dialog)
{
    const auto close = [&window] {
        while (QWidget *const box = QApplication::activeModalWidget()) {
            if (box == &window || !box->close())
                break;
        }
        window.done(QDialog::Rejected);
    };
    if (dialog.state() != PrintDialog::State::sending)
        return close();
    QObject::connect(&dialog, &PrintDialog::failed, &dialog, [close](const foundation::Problem &problem) {
        complain(problem.sentence);
        close();
    });
    dialog.stop();
}

namespace {

/// Shows the panel that the command line names; one that is not there yet, as soon as its printer comes. The exit
/// status of a window that closes without a job.
int showPanel(DialogWindow &window, const PrintDialog &dialog, const QString &panel)
{
    if (panel.isEmpty())
        return kRefused;
    if (!dialog.target()) {
        window.showPanelFirst(panel);
    } else if (!window.showPanel(panel)) {
        complain(QString("--panel %1: there is no such panel").arg(panel));
        return kWrongUse;
    }
    return kRefused;
}

} // namespace

int openDialog(const CommandLine &line)
{
    useWindowTexts(line.request.language);
    setConversationLanguage(line.request.language);
    PrintDialog dialog(line.request, nullptr);
    dialog.chooseDocuments(line.files);
    removeTemporaries(line);
    tellOnTerminal(dialog); // and the window will
    tellWhatBecomesOfJobs(dialog);
    if (const auto started = dialog.start(); !started)
        complain(started.problem().sentence);
    DialogWindow window(dialog);
    const Interrupts interrupts([&] { interrupt(window, dialog); });
    const int withoutJob = showPanel(window, dialog, line.panel);
    return window.exec() == QDialog::Accepted ? kDone : withoutJob;
}

namespace {

/// Null when there is nothing to compare with.
foundation::Or<QImage> earlierPicture(const QString &path)
{
    if (path.isEmpty())
        return QImage();
    QImageReader reader(path);
    QImage picture = reader.read();
    if (picture.isNull())
        return foundation::Problem{QString("%1: %2").arg(path, reader.errorString())};
    return picture;
}

int write(const QImage &picture, const QString &path)
{
    if (picture.save(path))
        return kDone;
    complain(QString("%1: can't be written").arg(path));
    return kRefused;
}

/// "panel-differences.png" beside "panel.png".
QString besidePicture(const QString &path)
{
    return path.first(path.lastIndexOf('/') + 1) + QFileInfo(path).completeBaseName() + "-differences.png";
}

/// The picture takes its place whatever the earlier one is: it may be the one to compare with from then on.
int keepPicture(const QImage &picture, const QImage &earlier, const CommandLine &line)
{
    const QString &path = line.files.last();
    if (const int status = write(picture, path); status != kDone || earlier.isNull())
        return status;
    const PictureDifferences differences(earlier, picture);
    if (differences.dots() == 0)
        return kDone;
    const QRect within = differences.within();
    const QString beside = besidePicture(path);
    complain(QString("%1: %2 dots differ from %3, within %4 x %5 at %6, %7; %8 has them in red")
                 .arg(path, QString::number(differences.dots()), line.compared, QString::number(within.width()),
                      QString::number(within.height()), QString::number(within.x()), QString::number(within.y()),
                      beside));
    write(differences.picture(), beside);
    return kRefused;
}

} // namespace

int takeShot(const CommandLine &line)
{
    if (line.request.ppd.isEmpty() || line.files.isEmpty() || line.files.size() > 2) {
        complain("shot: needs --ppd FILE and the name of one picture, with a document before it or without");
        return kWrongUse;
    }
    const auto earlier = earlierPicture(line.compared);
    if (!earlier) {
        complain(earlier.problem().sentence);
        return kRefused;
    }
    useWindowTexts(line.request.language);
    const QStringList documents = line.files.first(line.files.size() - 1);
    PrintDialog dialog(line.request, nullptr);
    if (!documents.isEmpty())
        dialog.chooseDocuments(documents);
    if (dialog.documents().size() < static_cast<std::size_t>(documents.size())) {
        complain(dialog.message());
        return kRefused;
    }
    if (const auto started = dialog.start(); !started) {
        complain(started.problem().sentence);
        return kRefused;
    }
    DialogWindow window(dialog);
    if (showPanel(window, dialog, line.panel) == kWrongUse)
        return kWrongUse;
    window.showPreview(!documents.isEmpty());
    window.show();
    QCoreApplication::processEvents();
    while (!window.isComplete())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QCoreApplication::processEvents(); // what has come last takes its place
    return keepPicture(window.grab().toImage(), *earlier, line);
}

} // namespace host
