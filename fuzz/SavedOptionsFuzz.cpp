// Any bytes as what the user has saved: a name, a value and, behind two line ends, the file. What is saved comes back,
// what is removed is gone, and every line about something else stays.
#include "Fuzzing.h"

#include "Cups/SavedOptions.h"

#include <QDir>
#include <QFile>

namespace {

constexpr auto kFile = ".cups/lpoptions";

QByteArrayList linesOfFile()
{
    QFile file(fuzzing::pathOf(kFile));
    return file.open(QIODevice::ReadOnly) ? file.readAll().split('\n') : QByteArrayList();
}

/// The lines that can't be about the queue.
QByteArrayList foreign(QByteArrayList lines)
{
    erase_if(lines, [](const QByteArray &line) { return line.isEmpty() || line.toLower().contains("counter"); });
    return lines;
}

/// Letter case does not count in a name.
void save(const host::SavedOptions &saved, const QString &name, const QString &value)
{
    const host::OptionValues options{{"QnMedia", "Thermal"}, {"x", value}};
    const QByteArrayList before = linesOfFile();
    const host::OptionValues own = saved.options();
    if (!saved.save(name, options)) {
        fuzzing::promise(linesOfFile() == before);
        return;
    }
    fuzzing::promise(saved.options(name) == options && saved.presets().contains(name, Qt::CaseInsensitive));
    fuzzing::promise(foreign(linesOfFile()) == foreign(before) && saved.options() == own);
    fuzzing::promise(saved.remove(name) && !saved.presets().contains(name, Qt::CaseInsensitive));
    fuzzing::promise(foreign(linesOfFile()) == foreign(before) && saved.options() == own);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const bool hasFolder = QDir().mkpath(fuzzing::pathOf(".cups"));
    const QByteArray bytes = fuzzing::bytesOf(data, size);
    const QByteArrayList parts = bytes.left(bytes.indexOf("\n\n")).split('\n');
    fuzzing::promise(hasFolder && qputenv("CUPS_SERVERROOT", "/proc/none"));
    fuzzing::write(fuzzing::pathOf(kFile), bytes.mid(bytes.indexOf("\n\n") + 2));
    const host::SavedOptions saved("counter");
    for (const QString &preset : saved.presets())
        saved.options(preset);
    const QString name = QString::fromUtf8(parts.value(0));
    if (host::SavedOptions::checkName(name))
        save(saved, name, QString::fromUtf8(parts.value(1)));
    return 0;
}
