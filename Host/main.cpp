// `qnprint`: which face of the dialog the command line asks for.
#include "RunDialog.h"
#include "Script.h"

#include <QApplication>

#include <cstring>

namespace {

bool worksWithoutDisplay(const char *command)
{
    return std::strcmp(command, "script") == 0 || std::strcmp(command, "shot") == 0;
}

} // namespace

int main(int argc, char *argv[])
{
    const char *const command = argc > 1 ? argv[1] : "";
    if (worksWithoutDisplay(command) && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");

    QApplication application(argc, argv);
    QCoreApplication::setOrganizationName("qnprint");
    QCoreApplication::setOrganizationDomain("qnprint.org");
    QCoreApplication::setApplicationName("qnprint");
    QCoreApplication::setApplicationVersion(QN_VERSION);

    const QStringList arguments = QCoreApplication::arguments().mid(1);
    if (std::strcmp(command, "script") == 0)
        return host::runScript();
    if (std::strcmp(command, "shot") == 0)
        return host::runShot(arguments.mid(1));
    return host::runDialog(arguments);
}
