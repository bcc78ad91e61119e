// `qnprint`: which face of the dialog the command line asks for.
#include "RunDialog.h"
#include "Script/Script.h"

#include <QApplication>

#include <algorithm>
#include <string_view>

namespace {

bool worksWithoutDisplay(int argc, char *argv[])
{
    const std::string_view command = argc > 1 ? argv[1] : "";
    return command == "script" || command == "shot" || std::any_of(argv, argv + argc, [](const char *argument) {
               return std::string_view("--no-dialog") == argument;
           });
}

QtMessageHandler usualHandler = nullptr;

/// What the platform without a display says of itself is nothing to a person who asked for none.
void withoutPlatformRemarks(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (!message.startsWith("This plugin does not support") && !message.contains("XDG_RUNTIME_DIR"))
        usualHandler(type, context, message);
}

} // namespace

int main(int argc, char *argv[])
{
    if (worksWithoutDisplay(argc, argv)) {
        if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
            qputenv("QT_QPA_PLATFORM", "offscreen");
        usualHandler = qInstallMessageHandler(withoutPlatformRemarks);
    }
    QApplication application(argc, argv);
    QCoreApplication::setOrganizationName("qnprint");
    QCoreApplication::setOrganizationDomain("qnprint.org");
    QCoreApplication::setApplicationName("qnprint");
    QCoreApplication::setApplicationVersion(QN_VERSION);

    const QStringList arguments = QCoreApplication::arguments().mid(1);
    const QString command = arguments.value(0);
    if (command == "script")
        return host::runScript();
    if (command == "shot")
        return host::runShot(arguments.mid(1));
    return host::runDialog(arguments);
}
