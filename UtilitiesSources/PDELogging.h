// A developer's diagnostic kit: trace lines, and dumps of an option and of the print settings. Panels do not call it;
// put a line where you need one. Every line goes to the system log.
#pragma once

#include "Foundation/SystemLog.h"
#include "Printing/PrintSettings.h"
#include "Printing/ppd_api.h"

#include <initializer_list>
#include <optional>

/// Lines tagged BEGIN, END and LOG. `object` is the description of the object at work, nil for none. It becomes part of
/// the format, as the caller's own text is: a percent sign in a description garbles the line, which is accepted.
void PDEProlog(const std::optional<QString> &object, const QString &format,
               std::initializer_list<foundation::LogArgument> arguments = {});
void PDEEpilog(const std::optional<QString> &object, const QString &format,
               std::initializer_list<foundation::LogArgument> arguments = {});
void PDELog(const std::optional<QString> &object, const QString &format,
            std::initializer_list<foundation::LogArgument> arguments = {});

/// The format that the three functions above fill with their arguments.
QString Format(const std::optional<QString> &object, const QString &tag, const QString &format);

/// Dumps one option. Null arguments are told; an option that the PPD lacks gives no line.
void PDELog_ppd_option_t(ppd_file_t *ppd, const char *ppdOptionName);

/// Writes the settings as a property list to /QnPDE_<name>.plist. Does nothing without settings or name, and
/// deliberately does not report a root directory that can't be written.
void PDELog_PMPrintSettings_WriteToFile(const printing::Settings *settings, const std::optional<QString> &name);
