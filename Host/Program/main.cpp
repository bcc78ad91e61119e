// `qnprint`: which face of the dialog the command line asks for.
#include "OpenDialog.h"
#include "QnVersion.h"

#include "Dialog/BackgroundWork.h"
#include "Script/Script.h"

#include <QApplication>

#include <cstdlib>
#include <iostream>

namespace {

using host::Face;

QtMessageHandler usualHandler = nullptr;

/// What the platform without a display says of itself is nothing to a person who asked for none.
void withoutPlatformRemarks(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (!message.startsWith("This plugin does not support") && !message.contains("XDG_RUNTIME_DIR"))
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

    const Face face = host::faceOf(rawArguments(argc, argv));
    if (face == Face::version)
        return tell("qnprint " QN_VERSION "\n");
    if (face == Face::help) {
        const QCoreApplication application(argc, argv);
        return tell(host::helpText());
    }
    if (face != Face::window)
        doWithoutDisplay();
    const int status = runApplication(face, argc, argv);
    // Nobody waits for a question that the server may take its time to answer, and nothing is cleaned up beneath it.
    if (host::BackgroundWork::isAbandonedWorkRunning())
        std::quick_exit(status);
    return status;
}
