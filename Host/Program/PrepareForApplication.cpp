// A dialog for an application whose document comes later.
#include "ForApplications.h"

#include "Application.h"
#include "OpenDialog.h"

#include "Dialog/PrintDialog.h"
#include "Printing/Units.h"
#include "Window/DialogWindow.h"
#include "Window/ForeignParent.h"

#include <QEventLoop>
#include <QJsonDocument>
#include <QSocketNotifier>
#include <QTimer>

#include <chrono>
#include <iostream>
#include <unistd.h>

namespace host {

using foundation::Problem;
using namespace std::chrono_literals;

namespace {

constexpr auto kPatience = 800ms; // for a printer, before the window shows without one

/// Gives the printer some time to be found, so that the window comes whole, or not at all.
void waitForPrinter(const PrintDialog &dialog)
{
    if (dialog.state() != PrintDialog::State::looking)
        return;
    QEventLoop loop;
    QObject::connect(&dialog, &PrintDialog::stateChanged, &loop, &QEventLoop::quit);
    QTimer::singleShot(kPatience, &loop, &QEventLoop::quit);
    loop.exec();
}

/// Whether another dialog does better: the printer has no panels of ours, or there is none at all.
bool isForOthers(const PrintDialog &dialog)
{
    if (dialog.state() == PrintDialog::State::ready)
        return !dialog.target()->hasOwnPanels();
    return dialog.state() == PrintDialog::State::noPrinter && dialog.problem().kind == Problem::Kind::noService;
}

PreparedPaper paperOf(const PrintTarget &target)
{
    const ChosenPaper chosen = target.paper();
    PreparedPaper paper;
    const auto sheet = target.sheet();
    if (!sheet)
        return paper;
    const auto millimetres = [](double points) { return points / printing::kPointsPerMillimetre; };
    paper.width = millimetres(sheet->size.width);
    paper.height = millimetres(sheet->size.height);
    paper.top = millimetres(sheet->printable.top());
    paper.left = millimetres(sheet->printable.left());
    paper.right = millimetres(sheet->size.width - sheet->printable.right());
    paper.bottom = millimetres(sheet->size.height - sheet->printable.bottom());
    paper.name = chosen.name.value_or(QString());
    paper.text = paper.name;
    for (const PaperEntry &entry : target.papers())
        if (entry.name == chosen.name)
            paper.text = entry.text;
    if (chosen.name == printing::kUserDefinedPaper) {
        const auto points = [](double side) { return QString::number(side, 'g', 6); };
        paper.name = QString("Custom.%1x%2").arg(points(sheet->size.width), points(sheet->size.height));
        paper.text =
            QString("%1 × %2 mm").arg(QString::number(paper.width, 'f', 1), QString::number(paper.height, 'f', 1));
    }
    return paper;
}

PreparedPrint preparedBy(const PrintDialog &dialog, const DialogWish &wish, bool isToBeLookedAt)
{
    const PrintTarget &target = *dialog.target();
    return {wish.ppd.isEmpty() ? target.name() : QString(),
            dialog.amount().copies,
            dialog.amount().pages,
            target.jobOptions(),
            paperOf(target),
            isToBeLookedAt,
            target.secretOptions()};
}

int tell(const QJsonObject &answer)
{
    std::cout << QJsonDocument(answer).toJson(QJsonDocument::Compact).toStdString() << '\n' << std::flush;
    return kDone;
}

int tellOutcome(const char *outcome) { return tell({{kOutcome, outcome}}); }

} // namespace

int prepareForApplication(const DialogWish &wish)
{
    const Application application(Face::window, platformFor(wish));
    useLanguage(wish.language);
    PrintRequest request = requestFor(wish);
    request.preparesOnly = true;
    PrintDialog dialog(request, nullptr);
    std::ignore = dialog.start(); // what is wrong the window shows
    waitForPrinter(dialog);
    if (wish.offersOthers && isForOthers(dialog))
        return tellOutcome(kOthers);
    DialogWindow window(dialog);
    window.serveApplication(wish.title, wish.acceptLabel, wish.offersOthers);
    setForeignParent(window, wish.parentWindow, wish.isModal);
    constexpr int kWantsOthers = 2;
    QObject::connect(&window, &DialogWindow::othersWanted, &window, [&window] { window.done(kWantsOthers); });
    QSocketNotifier service(STDIN_FILENO, QSocketNotifier::Read); // says no more: it has ended, or dropped us
    QObject::connect(&service, &QSocketNotifier::activated, &window, [&](QSocketDescriptor, QSocketNotifier::Type) {
        service.setEnabled(false);
        interrupt(window, dialog);
    });
    switch (window.exec()) {
    case QDialog::Accepted:
        return tell({{kOutcome, kPrepared}, {kPrepared, toJson(preparedBy(dialog, wish, window.wantsToLook()))}});
    case kWantsOthers: return tellOutcome(kOthers);
    default: return tellOutcome(kCancelled);
    }
}

} // namespace host
