// A document that is locked with a password. It may be exchanged at any time, while its password is asked for and while
// it is opened; and a job with it may be on its way.
#include "DocumentLock.h"

#include "Pages/UnlockedDocument.h"

#include <QPointer>

#include <utility>

namespace host {

using foundation::Or;
using foundation::Problem;

namespace {

constexpr int kMostTries = 3;

} // namespace

DocumentLock::DocumentLock(PrintDialog &dialog)
    : m_dialog(dialog)
{
    connect(&dialog, &PrintDialog::failed, this, &DocumentLock::jobFailed);
    connect(&dialog, &PrintDialog::documentsChanged, this, &DocumentLock::documentsChanged);
}

void DocumentLock::ask(const QString &sentence)
{
    if (m_phase != Phase::idle || m_dialog.documents().empty() || m_dialog.isRaw())
        return;
    const bool isPossible = UnlockedDocument::isPossible();
    m_dialog.say(About::document, isPossible ? sentence : tr("%1; qpdf, which unlocks it, is missing").arg(sentence));
    if (!isPossible)
        return;
    m_document = m_dialog.documents().front();
    m_tries = 0;
    askWhenFree(sentence);
}

void DocumentLock::askWhenFree(const QString &sentence)
{
    m_phase = Phase::asking;
    m_dialog.whenFree([self = QPointer(this), sentence, document = m_document] {
        if (self && self->m_phase == Phase::asking && document == self->m_document)
            Q_EMIT self->passwordWanted(sentence);
    });
}

/// What the document needs is said of the document; the job has nothing to add.
void DocumentLock::jobFailed(const Problem &problem)
{
    if (problem.kind != Problem::Kind::locked)
        return;
    m_dialog.say(About::job, {});
    ask(problem.sentence);
    m_isToPrint = m_phase != Phase::idle;
}

void DocumentLock::open(const QString &password)
{
    if (m_phase != Phase::asking)
        return;
    m_phase = Phase::opening;
    ++m_tries;
    m_work = BackgroundWork(
        *this,
        [document = m_document, password](const std::stop_token &stop) {
            return std::pair(document, UnlockedDocument::of(*document, password, stop));
        },
        [this](std::pair<std::shared_ptr<Document>, Or<std::shared_ptr<Document>>> opened) {
            m_dialog.whenFree([self = QPointer(this), opened = std::move(opened)] {
                if (self)
                    self->end(opened.first, opened.second);
            });
        });
}

void DocumentLock::end(const std::shared_ptr<Document> &locked, const Or<std::shared_ptr<Document>> &opened)
{
    if (m_phase != Phase::opening || locked != m_document)
        return; // another one has been chosen since
    if (!opened && opened.problem().kind == Problem::Kind::locked && m_tries < kMostTries)
        return askWhenFree(opened.problem().sentence);
    const bool isToPrint = m_isToPrint;
    leave();
    if (!opened)
        return m_dialog.say(About::document, opened.problem().kind == Problem::Kind::locked
                                                 ? tr("%1: stays locked; no password was right").arg(locked->title())
                                                 : opened.problem().sentence);
    m_dialog.exchange(locked, *opened);
    if (isToPrint)
        m_dialog.print();
}

void DocumentLock::leave()
{
    m_phase = Phase::idle;
    m_isToPrint = false;
    m_document.reset();
}

void DocumentLock::documentsChanged()
{
    const auto &documents = m_dialog.documents();
    if (m_phase == Phase::idle || (!documents.empty() && documents.front() == m_document))
        return;
    m_work.requestStop();
    leave();
    Q_EMIT passwordWantedNoMore();
}

} // namespace host
