// Options of a job by name, as every program of the printing system writes them.
#pragma once

#include <QMap>
#include <QString>

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

/// Options for a printer with a PPD: there, `media` is the page size, unless one is named.
OptionValues withMediaAsPageSize(OptionValues options);

} // namespace host
