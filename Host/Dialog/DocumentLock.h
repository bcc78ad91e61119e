// A document that is locked with a password: the password is asked for, and the document that it opens takes the place
// of the locked one.
#pragma once

#include "BackgroundWork.h"
#include "PrintDialog.h"

namespace host {

class DocumentLock : public QObject
{
    Q_OBJECT

public:
    /// Asks as well when a job was refused for it; that is sent then. The dialog has to outlive it.
    explicit DocumentLock(PrintDialog &dialog);

    /// Asks for the password of the first document, as soon as nothing stands over the dialog. `sentence`: why. Not for
    /// what is sent as it is.
    void ask(const QString &sentence);
    /// Answers `passwordWanted`.
    void open(const QString &password);
    /// The same when nobody knows it: the document stays locked.
    void leave();

Q_SIGNALS:
    /// Why, in one sentence. Three times for a document, until a person begins anew.
    void passwordWanted(const QString &sentence);
    /// What it was wanted for has gone.
    void passwordWantedNoMore();

private:
    enum class Phase { idle, asking, opening };

    void askWhenFree(const QString &sentence);
    void jobFailed(const foundation::Problem &problem);
    void documentsChanged();
    void end(const std::shared_ptr<Document> &locked, const foundation::Or<std::shared_ptr<Document>> &opened);

    PrintDialog &m_dialog;
    std::shared_ptr<Document> m_document; // that the password is wanted for
    Phase m_phase = Phase::idle;
    int m_tries = 0;
    bool m_isToPrint = false; // once it is open
    BackgroundWork m_work;    // last: what it posts to is still there when it is waited for
};

} // namespace host
