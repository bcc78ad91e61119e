// `qnprint`: which face of the dialog the command line asks for.
#include "OpenDialog.h"
#include "QnVersion.h"

#include "Cups/Conversation.h"
#include "Script/Script.h"
#include "Server/Answering.h"
#include "Window/WindowTexts.h"

#include <QApplication>

#include <algorithm>
#include <iostream>

namespace {

using host::Face;

QtMessageHandler usualHandler = nullptr;

/// What the platform without a display says of itself is nothing to a person who asked for none.
void withoutPlatformRemarks(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (!message.startsWith("This plugin does not support") && !message.startsWith("QStandardPaths: "))
        usualHandler(type, context, message);
}

void doWithoutDisplay()
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    usualHandler = qInstallMessageHandler(withoutPlatformRemarks);
}

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

int run(Face face, QStringList arguments)
{
    if (face == Face::script)
        return host::runScript();
    if (face == Face::shot)
        arguments.removeFirst();
    const auto line = host::readCommandLine(arguments);
    if (!line) {
        host::complain(line.problem().sentence);
        return host::kWrongUse;
    }
    line->environment.apply();
    if (face == Face::shot)
        return host::takeShot(*line);
    return face == Face::batch ? host::printWithoutWindow(*line) : host::openDialog(*line);
}

/// Told before the line is read, and then in part only: what is started for nothing does no harm.
bool mayUsePPDFile(const QStringList &arguments)
{
    return std::ranges::any_of(arguments, [](const QString &argument) { return argument.startsWith("--ppd"); });
}

[[noreturn]] void talkWithServer(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv); // for translations
    host::answerConversation(host::useWindowTexts);
}

int runApplication(Face face, int argc, char *argv[])
{
    QApplication application(argc, argv);
    return run(face, QCoreApplication::arguments().mid(1)); // Qt has taken its own
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication::setOrganizationName("qnprint");
    QCoreApplication::setOrganizationDomain("qnprint.org");
    QCoreApplication::setApplicationName("qnprint");
    QCoreApplication::setApplicationVersion(QN_VERSION);

    if (argc == 2 && qstrcmp(argv[1], host::kConversation) == 0)
        talkWithServer(argc, argv);
    const QStringList arguments = rawArguments(argc, argv);
    const Face face = host::faceOf(arguments);
    if (face == Face::version)
        return tell("qnprint " QN_VERSION "\n");
    if (face == Face::help) {
        const QCoreApplication application(argc, argv);
        return tell(host::helpText());
    }
    if (face != Face::window)
        doWithoutDisplay();
    if ((face == Face::window || face == Face::batch) && !mayUsePPDFile(arguments))
        host::prepareConversation(); // starts while the application does
    return runApplication(face, argc, argv);
}
