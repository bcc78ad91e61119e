// A dialog for an application, and the job that comes after it. They begin with a line of JSON on standard input; the
// document of a job comes with a descriptor of its own.
#include "ForApplications.h"

#include "Application.h"
#include "OpenDialog.h"
#include "PrintUnseen.h"

#include "Cups/Conversation.h"
#include "Foundation/PlainText.h"
#include "Pages/PageReader.h"
#include "Portal/PortalRequest.h"
#include "Printing/Units.h"
#include "Toolkit/Alert.h"
#include "Window/DialogWindow.h"
#include "Window/ForeignParent.h"
#include "Window/JobFailedBox.h"
#include "Window/Notification.h"
#include "Window/WindowTexts.h"

#include <QApplication>
#include <QEventLoop>
#include <QJsonDocument>
#include <QSocketNotifier>
#include <QTimer>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <iostream>
#include <sys/mman.h>
#include <sys/resource.h>
#include <unistd.h>

namespace host {

using foundation::Or;
using foundation::Problem;
using namespace std::chrono_literals;

namespace {

constexpr auto kPatience = 800ms; // for a printer, before the window shows without one
constexpr rlim_t kLargestDocument = rlim_t{1} << 30;

/// A line, or less where the input ends before.
QJsonObject readRequest()
{
    QByteArray line;
    std::array<char, 4096> part{};
    while (!line.contains('\n')) {
        const ssize_t bytes = ::read(STDIN_FILENO, part.data(), part.size());
        if (bytes <= 0)
            break;
        line.append(part.data(), bytes);
    }
    return QJsonDocument::fromJson(line).object();
}

PrintRequest requestFor(const DialogWish &wish)
{
    PrintRequest request;
    request.ppd = wish.ppd;
    request.output = wish.output;
    request.language = wish.language;
    request.copies = wish.copies;
    request.pages = wish.pages;
    request.queue = wish.ppd.isEmpty() ? wish.printer : QString();
    request.isGuess = true;
    request.remembered = wish.options;
    return request;
}

void useLanguage(const QString &language)
{
    useWindowTexts(language);
    setConversationLanguage(language);
}

/// A window of X11 can have only windows of X11 over it.
QStringList platformFor(const DialogWish &wish)
{
    const bool isElsewhere = qEnvironmentVariableIsSet("WAYLAND_DISPLAY") && qEnvironmentVariableIsSet("DISPLAY");
    return isElsewhere && isOnX11(wish.parentWindow) ? QStringList{"-platform", "xcb"} : QStringList();
}

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
            isToBeLookedAt};
}

int tell(const QJsonObject &answer)
{
    std::cout << QJsonDocument(answer).toJson(QJsonDocument::Compact).toStdString() << '\n' << std::flush;
    return kDone;
}

int tellOutcome(const char *outcome) { return tell({{kOutcome, outcome}}); }

int prepare(const DialogWish &wish)
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

PrintRequest requestFor(const JobWish &wish)
{
    PrintRequest request = requestFor(wish.dialog);
    request.title = wish.title;
    if (!wish.prepared)
        return request;
    if (request.ppd.isEmpty())
        request.queue = wish.prepared->queue;
    request.isGuess = false;
    request.isSettled = true;
    request.copies = wish.prepared->copies;
    request.pages = wish.prepared->pages;
    request.options = wish.prepared->options;
    return request;
}

/// The document, and with it the title of the job: the wished one, its own, or that of whoever wants it printed.
Or<std::shared_ptr<Document>> receive(JobWish &wish)
{
    std::signal(SIGXFSZ, SIG_IGN); // a document without end is told as one that is too large
    rlimit limit{};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = std::min({limit.rlim_cur, limit.rlim_max, kLargestDocument});
    ::setrlimit(RLIMIT_FSIZE, &limit);
    const QString name =
        wish.title.isEmpty() ? QCoreApplication::translate("host::ForApplications", "Document", "a title") : wish.title;
    ::lseek(kDocumentDescriptor, 0, SEEK_SET); // where it was left by whoever wrote it; a pipe stays where it is
    auto document = Document::copied(name, kDocumentDescriptor);
    if (!document || !wish.title.isEmpty())
        return document;
    wish.title = (*document)->format() == "application/pdf" ? PageReader(**document).title({}) : QString();
    if (wish.title.isEmpty())
        wish.title = wish.application;
    if (!wish.title.isEmpty())
        (*document)->setTitle(wish.title);
    return document;
}

/// What a panel says against a job, which it would show in an alert.
struct Refusal
{
    QString sentence;
    toolkit::PresentAlerts alerts{[this](const toolkit::Alert &alert) {
        sentence = (alert.messageText() + ' ' + alert.informativeText()).simplified();
    }};
};

/// Without a word when all is well. A job that waits is told by the desktop.
Or<void> printAsSettled(const JobWish &wish, const std::shared_ptr<Document> &document)
{
    const Refusal refusal;
    PrintDialog dialog(requestFor(wish), document);
    QObject::connect(&dialog, &PrintDialog::printed, [&dialog](const QString &, const QString &fate) {
        if (dialog.target()->sink()->whyItWaits())
            notify(fate);
    });
    if (auto started = dialog.start(); !started)
        return started;
    auto printed = printUnseen(dialog);
    if (!printed && printed.problem().sentence.isEmpty())
        return Problem{refusal.sentence};
    return printed;
}

/// The same process goes on as another one, which has a display and the same document.
int goOnAs(const char *word, const JobWish &wish, int document)
{
    const QByteArray request = QJsonDocument(toJson(wish)).toJson(QJsonDocument::Compact) + '\n';
    const int input = ::memfd_create("request", MFD_CLOEXEC);
    if (input < 0 || ::write(input, request.constData(), static_cast<std::size_t>(request.size())) != request.size())
        return kRefused;
    ::lseek(input, 0, SEEK_SET);
    ::dup2(input, STDIN_FILENO);
    if (document == kDocumentDescriptor)
        ::fcntl(document, F_SETFD, 0);
    else if (document >= 0)
        ::dup2(document, kDocumentDescriptor);
    ::lseek(kDocumentDescriptor, 0, SEEK_SET);
    const QByteArray path = QCoreApplication::applicationFilePath().toLocal8Bit();
    ::execl(path.constData(), path.constData(), word, nullptr);
    return kRefused;
}

int print(JobWish wish)
{
    const Application application(Face::batch, {});
    useLanguage(wish.dialog.language);
    prepareConversation();
    const auto document = receive(wish);
    const auto printed = document ? printAsSettled(wish, *document) : Or<void>(document.problem());
    if (printed)
        return kDone;
    complain(printed.problem().sentence);
    wish.problem = printed.problem().sentence;
    wish.isLost = !document;
    return goOnAs(kPrintAsked, wish, document ? (*document)->descriptor() : -1);
}

/// The whole dialog, with the document.
int showWholeDialog(const JobWish &wish, PrintRequest request, const std::shared_ptr<Document> &document)
{
    PrintDialog dialog(std::move(request), document);
    QObject::connect(&dialog, &PrintDialog::printed, [](const QString &, const QString &fate) {
        if (!fate.isEmpty())
            notify(fate);
    });
    std::ignore = dialog.start();
    DialogWindow window(dialog);
    setForeignParent(window, wish.dialog.parentWindow, wish.dialog.isModal);
    window.showPreview(wish.prepared && wish.prepared->isToBeLookedAt);
    return window.exec() == QDialog::Accepted ? kDone : kRefused;
}

/// What another printer can do: what was chosen for the first one means nothing to it.
PrintRequest requestForAnotherPrinter(const JobWish &wish)
{
    PrintRequest request = requestFor(wish);
    request.queue.clear();
    request.options.clear();
    request.isSettled = false;
    return request;
}

int tellOfFailure(JobWish wish, const std::shared_ptr<Document> &document)
{
    JobFailedBox box(document);
    setForeignParent(box, wish.dialog.parentWindow, false);
    box.tell(wish.problem);
    constexpr int kAnotherPrinter = 2;
    QObject::connect(&box, &JobFailedBox::otherPrinterWanted, &box, [&box] { box.done(kAnotherPrinter); });
    QObject::connect(&box, &JobFailedBox::againWanted, &box, [&] {
        if (const auto printed = printAsSettled(wish, document))
            box.accept();
        else
            box.tell(printed.problem().sentence);
    });
    switch (box.exec()) {
    case QDialog::Accepted: return kDone;
    case kAnotherPrinter: return showWholeDialog(wish, requestForAnotherPrinter(wish), document);
    default: return kRefused;
    }
}

int ask(JobWish wish)
{
    const Application application(Face::window, platformFor(wish.dialog));
    useLanguage(wish.dialog.language);
    const auto document = wish.isLost ? Or<std::shared_ptr<Document>>(nullptr) : receive(wish);
    if (!document) {
        wish.problem = document.problem().sentence;
        return tellOfFailure(wish, nullptr);
    }
    if (!wish.problem.isEmpty())
        return tellOfFailure(wish, *document);
    return showWholeDialog(wish, requestFor(wish), *document);
}

} // namespace

bool isForApplication(const QString &word) { return word == kPrepare || word == kPrintPrepared || word == kPrintAsked; }

int serveApplication(const QString &word)
{
    const QJsonObject request = readRequest();
    if (word == kPrepare)
        return prepare(dialogWishFromJson(request));
    return word == kPrintPrepared ? print(jobWishFromJson(request)) : ask(jobWishFromJson(request));
}

} // namespace host
