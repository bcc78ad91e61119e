// A developer's diagnostic kit.
#include "PDELogging.h"

#include "Foundation/Text.h"

#include <QSaveFile>

#include <array>

using foundation::LogArgument;
using foundation::NSLog;

namespace {

void logTagged(const std::optional<QString> &object, const QString &tag, const QString &format,
               std::initializer_list<LogArgument> arguments)
{
    foundation::NSLogv(Format(object, tag, format), {arguments.begin(), arguments.size()});
}

QString systemString(const char *bytes)
{
    return foundation::stringFromBytes(bytes, foundation::systemEncoding()).value_or("(null)");
}

/// A flag byte read as the start of a text: a record's name follows its flag, so a raised flag shows as a character and
/// that name, a flag that is not raised as nothing. Kept so, because people know the dump by it.
template <class Record>
QString flagAsString(const Record &record)
{
    return systemString(reinterpret_cast<const char *>(&record));
}

} // namespace

QString Format(const std::optional<QString> &object, const QString &tag, const QString &format)
{
    if (object)
        return foundation::formattedString("%@ self(%@) %@", std::array<LogArgument, 3>{tag, *object, format});
    return foundation::formattedString("%@ %@", std::array<LogArgument, 2>{tag, format});
}

void PDEProlog(const std::optional<QString> &object, const QString &format,
               std::initializer_list<LogArgument> arguments)
{
    logTagged(object, "BEGIN", format, arguments);
}

void PDEEpilog(const std::optional<QString> &object, const QString &format,
               std::initializer_list<LogArgument> arguments)
{
    logTagged(object, "END", format, arguments);
}

void PDELog(const std::optional<QString> &object, const QString &format, std::initializer_list<LogArgument> arguments)
{
    logTagged(object, "LOG", format, arguments);
}

void PDELog_ppd_option_t(ppd_file_t *ppd, const char *ppdOptionName)
{
    if (!ppd)
        return NSLog("PPD file is not loaded!!");
    if (!ppdOptionName)
        return NSLog("ppdOptionName is NULL!!");
    const ppd_option_t *const option = ppdFindOption(ppd, ppdOptionName);
    if (!option)
        return;
    const ppd_choice_t *const first = option->num_choices > 0 ? option->choices : nullptr;
    const QString name = systemString(ppdOptionName);

    NSLog("+-+-+-+-+-+-+-+-+-+- start is %@", {name});
    NSLog("***** conflicted | %@", {flagAsString(*option)});
    NSLog("***** keyword | %@", {systemString(option->keyword)});
    NSLog("***** defchoice | %@", {systemString(option->defchoice)});
    NSLog("***** text | %@", {systemString(option->text)});
    NSLog("***** ui == %d", {static_cast<int>(option->ui)});
    NSLog("***** section == %d", {static_cast<int>(option->section)});
    NSLog("***** order == %f", {static_cast<double>(option->order)});
    NSLog("***** num_choices == %d", {option->num_choices});
    NSLog("***** choices->marked | %@", {first ? flagAsString(*first) : systemString(nullptr)});
    NSLog("***** choices->choice | %@", {systemString(first ? first->choice : nullptr)});
    NSLog("***** choices->text | %@", {systemString(first ? first->text : nullptr)});
    NSLog("+-+-+-+-+-+-+-+-+-+- end is %@", {name});
}

void PDELog_PMPrintSettings_WriteToFile(const printing::Settings *settings, const std::optional<QString> &name)
{
    const auto data = printing::PMPrintSettingsCreateDataRepresentation(settings);
    if (!data || !name)
        return;
    QSaveFile file(foundation::formattedString("/QnPDE_%@.plist", std::array<LogArgument, 1>{*name}));
    if (!file.open(QIODevice::WriteOnly))
        return;
    file.write(*data);
    file.commit();
}
