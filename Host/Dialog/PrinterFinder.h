// Looks for printers of the CUPS server without holding up the dialog.
#pragma once

#include "BackgroundWork.h"

#include "Cups/Queues.h"

#include <map>
#include <memory>

namespace host {

class PrinterFinder : public QObject
{
    Q_OBJECT

public:
    explicit PrinterFinder(QObject *parent);

    /// Answers once, with `found` or with `failed`. Drops what an earlier call has not found yet, and waits for none of
    /// it.
    void find(const QueueName &name);
    /// Answers with `foundAll` or with `failedAll`.
    void findAll();

Q_SIGNALS:
    /// Whoever takes the printer takes the PPD out of it.
    void found(const std::shared_ptr<host::OpenedQueue> &queue);
    void failed(const foundation::Problem &problem);
    void foundAll(const host::Queues &queues);
    void failedAll(const foundation::Problem &problem);

private:
    void answer(foundation::Or<OpenedQueue> queue);

    std::map<int, BackgroundWork> m_searches; // by number; answers to all but the latest are dropped
    int m_latest = 0;
    BackgroundWork m_searchForAll;
};

} // namespace host
