// What the user has saved for queues: their own defaults, and named presets. Kept where every CUPS program keeps and
// reads it, one line a queue or preset (`lp -d queue/preset`).
#pragma once

#include "PPD/PPDDocument.h"

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

    const QString &queue() const { return m_queue; }

    /// Sorted.
    QStringList presets() const;
    /// What is saved under a preset's name; under no name, the user's own defaults.
    OptionValues options(const QString &preset = {}) const;

    /// Puts options in place of what was saved under the name, and nothing else. Nil when they are on disk; otherwise
    /// one sentence, and the file is as it was.
    std::optional<QString> save(const QString &preset, const OptionValues &options) const;
    std::optional<QString> remove(const QString &preset) const;

    /// Nil when a preset can go by the name; otherwise a sentence that says what is wrong with it.
    static std::optional<QString> problemOf(const QString &preset);

private:
    std::optional<QString> replace(const QString &preset, const std::optional<OptionValues> &options) const;

    QString m_queue;
};

} // namespace host
