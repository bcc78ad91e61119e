// A dialog for an application, and the job that comes after it. They begin with a line of JSON on standard input; the
// document of a job comes with a descriptor of its own.
#include "ForApplications.h"

#include "Cups/Conversation.h"
#include "Window/ForeignParent.h"
#include "Window/WindowTexts.h"

#include <QJsonDocument>

#include <array>
#include <unistd.h>

namespace host {

namespace {

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

} // namespace

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

QStringList platformFor(const DialogWish &wish)
{
    const bool isElsewhere = qEnvironmentVariableIsSet("WAYLAND_DISPLAY") && qEnvironmentVariableIsSet("DISPLAY");
    return isElsewhere && isOnX11(wish.parentWindow) ? QStringList{"-platform", "xcb"} : QStringList();
}

bool isForApplication(const QString &word) { return word == kPrepare || word == kPrintPrepared || word == kPrintAsked; }

int serveApplication(const QString &word)
{
    const QJsonObject request = readRequest();
    if (word == kPrepare)
        return prepareForApplication(dialogWishFromJson(request));
    return word == kPrintPrepared ? printForApplication(jobWishFromJson(request))
                                  : askForApplication(jobWishFromJson(request));
}

} // namespace host
