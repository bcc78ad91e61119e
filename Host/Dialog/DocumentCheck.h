// Whether the document goes with the job: how many pages it has, and whether they are as large as the paper. Read
// beside everything else; nothing waits for it.
#pragma once

#include "BackgroundWork.h"
#include "PrintDialog.h"

#include "Pages/PageReader.h"

namespace host {

class DocumentCheck : public QObject
{
    Q_OBJECT

public:
    /// What helps a page that is another size than the paper.
    struct Remedy
    {
        QString text;                     // of a button
        std::optional<ChosenPaper> paper; // nil: the page is fitted to the paper that there is
    };

    /// Begins at once, and again with every other document. What is to be said is said in the dialog's messages; it has
    /// to outlive the check.
    explicit DocumentCheck(PrintDialog &dialog);

    /// Of the document; nil while that is not known, and of what has pages only when it is laid out.
    std::optional<int> pages() const;
    bool isBusy() const { return m_isReading; }
    const std::optional<Remedy> &remedy() const { return m_remedy; }
    void takeRemedy();

Q_SIGNALS:
    void changed();
    /// The document can't be read without a password.
    void locked(const QString &sentence);

private:
    void begin();
    void end(const std::shared_ptr<Document> &document, foundation::Or<std::vector<QSizeF>> sizes);
    void compare();
    QString comparePages() const;
    QString compareSizes();
    Remedy remedyFor(QSizeF page, const Sheet &sheet) const;

    PrintDialog &m_dialog;
    std::shared_ptr<Document> m_document; // that is known, or read now
    std::vector<QSizeF> m_sizes;          // of its pages, in points
    std::optional<Remedy> m_remedy;
    bool m_saysPages = false;
    bool m_isReading = false;
    BackgroundWork m_work; // last: what it posts to is still there when it is waited for
};

} // namespace host
