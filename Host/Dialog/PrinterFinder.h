// Looks for printers of the CUPS server without holding up the dialog.
#pragma once

#include "BackgroundWork.h"

#include "Cups/Queues.h"

namespace host {

class PrinterFinder : public QObject
{
    Q_OBJECT

public:
    explicit PrinterFinder(QObject *parent);

    /// Answers once, with `found` or with `failed`. Drops what an earlier call has not found yet.
    void find(const QueueName &name);
    /// Answers with `foundAll` or with `failedAll`.
    void findAll();

Q_SIGNALS:
    void found(const host::Queue &queue);
    void failed(const foundation::Problem &problem);
    void foundAll(const host::Queues &queues);
    void failedAll(const foundation::Problem &problem);

private:
    void answer(const foundation::Or<Queue> &queue);

    BackgroundWork m_search;
    BackgroundWork m_searchForAll;
    int m_request = 0; // number of the latest search; answers to earlier ones are dropped
};

} // namespace host
