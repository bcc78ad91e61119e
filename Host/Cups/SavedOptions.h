// What the user has saved for queues: their own defaults, and named presets. Kept where every CUPS program keeps and
// reads it, one line a queue or preset (`lp -d queue/preset`).
#pragma once

#include "PPD/OptionValues.h"

#include "Foundation/Or.h"

#include <QByteArrayList>
#include <QCoreApplication>
#include <QStringList>

#include <optional>

namespace host {

class SavedOptions
{
    Q_DECLARE_TR_FUNCTIONS(host::SavedOptions)

public:
    /// Of one queue. The names are read afresh each time: other programs save as well.
    explicit SavedOptions(QString queue)
        : m_queue(std::move(queue))
    {}

    /// Sorted.
    QStringList presets() const;
    /// What is saved under a preset's name; under no name, the user's own defaults.
    OptionValues options(const QString &preset = {}) const;

    /// Puts options in place of what was saved under the name, and nothing else. They are on disk then, or there is a
    /// problem and the file is as it was.
    foundation::Or<void> save(const QString &preset, const OptionValues &options) const;
    /// Takes the user's own away. Where the system has one of the name as well, that stays, which is a problem.
    foundation::Or<void> remove(const QString &preset) const;

    /// Whether a preset can go by the name, so that other programs can read it.
    static foundation::Or<void> checkName(const QString &preset);

private:
    // Without options (null) the preset is removed.
    foundation::Or<void> replace(const QString &preset, const OptionValues *options) const;
    QByteArrayList replaced(const QByteArrayList &lines, const QString &preset, const OptionValues *options) const;

    QString m_queue;
};

} // namespace host
