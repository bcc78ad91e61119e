// A print job and the places that it can go to.
#pragma once

#include "Cups/PPDCache.h"
#include "Document.h"
#include "PPD/PPDDocument.h"

#include <QCoreApplication>

#include <functional>

namespace host {

struct Job
{
    Document &document;
    QString title;
    int copies = 1;
    QString pages; // as `readPageRanges` gives them; empty: all
    OptionValues options;
};

inline constexpr int kMostCopies = 999;

/// Nil when the text is no number of copies.
std::optional<int> readCopies(const QString &text);

/// "1-3,5" in the one form that servers take: in order, without overlaps or spaces. Empty for all pages; nil when the
/// text means no pages of a document.
std::optional<QString> readPageRanges(const QString &text);

/// `done` of `total` bytes have gone; false stops the job.
using JobProgress = std::function<bool(qint64 done, qint64 total)>;

/// Where a job goes. Submitting blocks, and may run on a thread of its own.
class JobSink
{
    Q_DECLARE_TR_FUNCTIONS(host::JobSink)

public:
    struct Result
    {
        bool done = false;
        QString sentence;      // for people: where the job went, or what is wrong
        bool outdated = false; // not sent, because the printer is another than the settings were made for
    };

    virtual ~JobSink() = default;
    /// A job that is stopped or fails leaves nothing behind.
    virtual Result submit(const Job &job, const JobProgress &progress) = 0;
};

/// Hands the document's content to `write`, part by part. Nil when all of it went; otherwise what went wrong: what
/// `write` answered, or that the document could not be read, or that `progress` stopped the job.
std::optional<QString> passOn(Document &document, const JobProgress &progress,
                              const std::function<std::optional<QString>(const QByteArray &part)> &write);

/// Into a folder: a copy of the document, and beside it a ticket in JSON with every option. Never over another job.
class FolderSink final : public JobSink
{
public:
    explicit FolderSink(QString folder)
        : m_folder(std::move(folder))
    {}
    Result submit(const Job &job, const JobProgress &progress) override;

private:
    QString m_folder;
};

/// To a queue of the CUPS server, streamed.
class CupsSink final : public JobSink
{
public:
    /// `ppd`: the one that the settings were made with; nil when there was none.
    CupsSink(QString queue, std::optional<CachedPPD> ppd)
        : m_queue(std::move(queue))
        , m_ppd(std::move(ppd))
    {}
    Result submit(const Job &job, const JobProgress &progress) override;

private:
    QString m_queue;
    std::optional<CachedPPD> m_ppd;
};

} // namespace host
