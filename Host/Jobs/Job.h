// A print job, and where one can go.
#pragma once

#include "Document.h"

#include "PPD/OptionValues.h"

#include <QCoreApplication>

#include <functional>
#include <stop_token>

namespace host {

struct Job
{
    std::shared_ptr<Document> document;
    QString title;
    int copies = 1;
    QString pages; // as `readPageRanges` gives them; empty: all
    OptionValues options;
};

/// Told that `done` of `total` bytes have gone.
using JobProgress = std::function<void(qint64 done, qint64 total)>;

class JobSink
{
    Q_DECLARE_TR_FUNCTIONS(host::JobSink)

public:
    virtual ~JobSink() = default;

    /// Sends a job; blocks, and may run on a thread of its own. Answers where the job went, for people. A job that is
    /// stopped or fails leaves nothing behind, or its problem says what may be left.
    virtual foundation::Or<QString> submit(const Job &job, const JobProgress &progress, std::stop_token stop) = 0;

    /// Why the job that went last waits where it is, in one clause; nil when it does not.
    virtual std::optional<QString> whyItWaits() const { return std::nullopt; }
};

/// Hands the document's content to `write`, part by part. A problem when `write` has one, when the document can't be
/// read any more, and when the job is stopped.
foundation::Or<void> streamDocument(Document &document, const JobProgress &progress, const std::stop_token &stop,
                                    const std::function<foundation::Or<void>(const QByteArray &part)> &write);

} // namespace host
