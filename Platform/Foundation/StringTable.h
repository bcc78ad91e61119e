// A bundle's string table.
#pragma once

#include <QString>

#include <memory>

class QTranslator;

namespace foundation {

/// Null when the file is no table, or one that is damaged: Qt reads what a table says of itself without looking whether
/// it is there.
std::unique_ptr<QTranslator> loadStringTable(const QString &path);

} // namespace foundation
