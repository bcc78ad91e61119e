// What the fuzz targets share: a folder of their own, an application without a display, and promises.
#pragma once

#include "Script/Script.h"

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>

namespace fuzzing {

/// In the folder of this process, which is also its home and goes with it.
QString pathOf(const QString &name);
void write(const QString &path, const QByteArray &content);

/// What always holds, whatever the bytes are. Ends the process when it does not.
void promise(bool kept);

/// Forgets what an earlier run has left in this process, as the same bytes have to do the same each time.
void beginRun();

/// A bundle in the folder of this process: the code of the real one, so that no run loads any, and its resources.
QString bundleCopy();

/// The reply to a line. Promised: it is one line, an object of JSON that says whether all went well.
QJsonObject reply(host::Script &script, const QByteArray &line);
QJsonObject reply(host::Script &script, const QJsonObject &request);
/// Everything that a person would look at in a dialog that is open.
void lookAround(host::Script &script);

inline QByteArray bytesOf(const std::uint8_t *data, std::size_t size)
{
    return {reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)};
}

} // namespace fuzzing
