// Options of a job by name, as every program of the printing system writes them.
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

namespace host {

/// Keyword to choice or value.
using OptionValues = QMap<QString, QString>;

/// The option of a PPD that chooses the paper.
inline constexpr auto kPageSize = "PageSize";
/// The same in the words of programs that know no PPD. A tray and a kind of paper may follow behind commas.
inline constexpr auto kMedia = "media";

/// Whether a keyword can be an option of a printer. Some words mean something else to every server, whatever a PPD
/// makes of them; others are no words.
bool canBeDriverOption(const QString &keyword);

/// Whether servers, or the filters on the way to a printer, take an option for themselves.
bool isServerOption(const QString &keyword);

/// The one of `known`, or of what servers take, that somebody may have meant who wrote `keyword`; empty when none is
/// near.
QString similarOption(const QString &keyword, const QStringList &known);

/// Options for a printer with a PPD: there, `media` is the page size, unless one is named.
OptionValues withMediaAsPageSize(OptionValues options);

} // namespace host
