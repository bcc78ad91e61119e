// The job of an application whose person has settled it before, and what is shown where that does not go well.
#include "ForApplications.h"

#include "Application.h"
#include "PrintUnseen.h"

#include "Cups/Conversation.h"
#include "Pages/PageReader.h"
#include "Toolkit/Alert.h"
#include "Window/CredentialsBox.h"
#include "Window/DialogWindow.h"
#include "Window/ForeignParent.h"
#include "Window/JobFailedBox.h"
#include "Window/Notification.h"

#include <QJsonDocument>

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>
#include <utility>

namespace host {

using foundation::Or;
using foundation::Problem;

namespace {

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

} // namespace

int printForApplication(JobWish wish)
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
    wish.isGuarded = printed.problem().kind == Problem::Kind::noAccess;
    return goOnAs(kPrintAsked, wish, document ? (*document)->descriptor() : -1);
}

namespace {

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

/// What was settled, by whoever says who they are as long as the printer wants to know. `printed`: what it came to
/// before anybody was asked. `over`: null for the window of the application.
Or<void> printIdentified(const JobWish &wish, const std::shared_ptr<Document> &document, Or<void> printed,
                         QWidget *over)
{
    QString user = qEnvironmentVariable("USER");
    for (int i = 0; i < kMostTriesToSayWho && !printed && printed.problem().kind == Problem::Kind::noAccess; ++i) {
        CredentialsBox box(printed.problem().sentence, user, over);
        if (!over)
            setForeignParent(box, wish.dialog.parentWindow, false);
        if (box.exec() != QDialog::Accepted)
            break;
        user = box.credentials().user;
        setConversationCredentials(box.credentials()); // wrong ones are forgotten by whoever gets to know
        printed = printAsSettled(wish, document);
    }
    return printed;
}

/// What another printer can do: what was chosen for the first one means nothing to it.
PrintRequest requestForAnotherPrinter(const JobWish &wish)
{
    PrintRequest request = requestFor(wish);
    request.failedQueue = std::exchange(request.queue, {});
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
        if (const auto printed = printIdentified(wish, document, printAsSettled(wish, document), &box))
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

} // namespace

int askForApplication(JobWish wish)
{
    const Application application(Face::window, platformFor(wish.dialog));
    useLanguage(wish.dialog.language);
    const auto document = wish.isLost ? Or<std::shared_ptr<Document>>(nullptr) : receive(wish);
    if (!document) {
        wish.problem = document.problem().sentence;
        return tellOfFailure(wish, nullptr);
    }
    if (wish.isGuarded) {
        const auto printed = printIdentified(wish, *document, Problem{wish.problem, Problem::Kind::noAccess}, nullptr);
        if (printed)
            return kDone;
        wish.problem = printed.problem().sentence;
    }
    if (!wish.problem.isEmpty())
        return tellOfFailure(wish, *document);
    PrintRequest request = requestFor(wish);
    request.remembered.insert(std::exchange(request.options, {})); // another printer may not have them
    return showWholeDialog(wish, request, *document);
}

} // namespace host
