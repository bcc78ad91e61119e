// The box that tells of a job that failed when nobody else does: the application that wanted it printed has gone on.
#pragma once

#include "Jobs/Document.h"

#include <QDialog>

class QLabel;
class QPushButton;

namespace host {

class JobFailedBox : public QDialog
{
    Q_OBJECT

public:
    /// `document`: null when there is none to do anything with.
    explicit JobFailedBox(std::shared_ptr<Document> document);

    /// Why, in one sentence. What was tried once more has failed.
    void tell(const QString &sentence);

Q_SIGNALS:
    void againWanted();
    void otherPrinterWanted();

private:
    void setBusy(bool isBusy);
    void askWhere();
    void saveAs(const QString &path);

    std::shared_ptr<Document> m_document;
    QLabel *m_sentence;
    std::vector<QPushButton *> m_ways;
};

} // namespace host
