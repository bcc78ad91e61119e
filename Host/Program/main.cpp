// `qnprint`: which face of the dialog the command line asks for.
#include "Application.h"
#include "ForApplications.h"
#include "OpenDialog.h"
#include "QnVersion.h"

#include "Cups/Conversation.h"
#include "Script/Script.h"
#include "Server/Answering.h"
#include "Window/WindowTexts.h"

#include <QCoreApplication>

#include <csignal>
#include <iostream>

namespace {

using host::Face;

QStringList rawArguments(int argc, char *argv[])
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    return arguments;
}

int tell(const QString &text)
{
    std::cout << text.toStdString() << std::flush;
    return host::kDone;
}

int driveByScript(const host::CommandLine &line, const QStringList &argumentsOfQt)
{
    const host::Application application(Face::script, argumentsOfQt);
    const auto ended = host::runScript(line.script);
    if (ended)
        return *ended;
    host::complain(ended.problem().sentence);
    return host::kRefused;
}

/// The command line is read before there is an application: wrong use is told without a display as well.
int run(Face face, const host::Arguments &arguments, int argc, char *argv[])
{
    const auto line = host::readCommandLine(arguments.ours);
    if (!line) {
        host::complain(line.problem().sentence);
        return host::kWrongUse;
    }
    if (face == Face::portal) {
        const QCoreApplication application(argc, argv); // nothing to be seen, and little memory
        return host::runPortal(*line);
    }
    if (face == Face::script)
        return driveByScript(*line, arguments.ofQt);
    if (face != Face::shot && face != Face::lint && line->request.ppd.isEmpty())
        host::prepareConversation(); // starts while the application does
    const host::Application application(face, arguments.ofQt);
    line->environment.apply();
    switch (face) {
    case Face::shot: return host::takeShot(*line);
    case Face::preview: return host::previewPage(*line);
    case Face::lint: return host::checkPPDs(*line);
    case Face::batch: return host::printWithoutWindow(*line);
    default: return host::openDialog(*line);
    }
}

[[noreturn]] void talkWithServer(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv); // for translations
    host::answerConversation(host::useWindowTexts);
}

} // namespace

// NOLINTNEXTLINE(bugprone-exception-escape): what nobody has caught is a defect, and ends the program
int main(int argc, char *argv[])
{
    std::signal(SIGXFSZ, SIG_IGN); // a file that may not grow any more is told of, as on a disk without room
    QCoreApplication::setOrganizationName("qnprint");
    QCoreApplication::setOrganizationDomain("qnprint.org");
    QCoreApplication::setApplicationName("qnprint");
    QCoreApplication::setApplicationVersion(QN_VERSION);

    if (argc == 2 && qstrcmp(argv[1], host::kConversation) == 0)
        talkWithServer(argc, argv);
    if (argc == 2 && host::isForApplication(QString::fromLocal8Bit(argv[1])))
        return host::serveApplication(QString::fromLocal8Bit(argv[1]));
    const auto arguments = host::partArguments(rawArguments(argc, argv));
    const Face face = host::faceOf(arguments.ours);
    if (face == Face::version)
        return tell("qnprint " QN_VERSION "\n");
    if (face == Face::help) {
        const QCoreApplication application(argc, argv);
        return tell(host::helpText());
    }
    return run(face, arguments, argc, argv);
}
