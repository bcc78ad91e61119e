// What the pages of the dialog's document will look like, kept up with every choice. It costs nothing until it is
// shown.
#pragma once

#include "BackgroundWork.h"
#include "PrintDialog.h"

#include "Pages/PrintedPages.h"

namespace host {

class PagePreview : public QObject
{
    Q_OBJECT

public:
    /// What a picture is of, and how it is to be made.
    struct View
    {
        std::shared_ptr<Document> document;
        Sheet sheet;
        Resolution resolution;
        Scaling scaling = Scaling::automatic;
        QString ranges;
        int page = 0;                         // from 0 on, among those that are printed
        std::optional<PDEPrintEffect> effect; // nil: the plain page
        QSize size;                           // of the picture; empty: a dot a pixel

        friend bool operator==(const View &, const View &) = default;
    };

    /// The dialog has to outlive the preview.
    explicit PagePreview(PrintDialog &dialog);

    /// Nothing is read or drawn while it is not shown.
    void setShown(bool isShown);
    /// From 0 on; held within the pages that there are.
    void setPage(int page);
    /// As printed, or the plain page.
    void setBurnt(bool isBurnt);
    /// So large is the whole sheet to be, in pixels; empty: as large as it has dots.
    void setSize(QSize size);

    int page() const { return m_page; }
    /// Of the pages that are printed; 0 while that is not known.
    int count() const { return m_count; }
    /// The sheet; null as long as there is nothing to be seen.
    const QImage &picture() const { return m_picture; }
    /// Why that is so, in one sentence; empty while it is made.
    const QString &problem() const { return m_problem; }
    /// Nil where nothing can be shown.
    std::optional<Sheet> sheet() const;
    std::optional<PDEPrintEffect> effect() const;
    QSize dots() const { return m_dots; }
    /// Whether a better picture is on its way.
    bool isBusy() const { return m_isWorking; }

Q_SIGNALS:
    void changed();

private:
    /// What the next picture may need again. With the work as long as that lasts.
    struct Cache
    {
        View of; // whose pages these are
        std::optional<PrintedPages> pages;
        QImage grey; // the sheet of its page, in the head's dots
    };
    struct Picture
    {
        View of;
        Cache cache;
        foundation::Or<QImage> picture;
    };

    std::optional<View> wanted() const;
    void refresh();
    void stop();
    void begin(const View &view);
    void end(Picture done);
    void showFirst(const QImage &picture);
    void show(const QImage &picture);
    void tell(const QString &problem);
    template <class Post>
    static Picture draw(View view, Cache cache, const Post &post, const std::stop_token &stop);

    PrintDialog &m_dialog;
    bool m_isShown = false;
    bool m_isBurnt = true;
    int m_page = 0;
    QSize m_size;

    QImage m_picture;
    QSize m_dots; // of the sheet
    QString m_problem;
    Cache m_cache;
    std::optional<View> m_drawing;
    std::optional<View> m_shown;
    bool m_isWorking = false;
    bool m_isStopped = false; // the work, because nobody wants its picture any more
    int m_count = 0;
    BackgroundWork m_work; // last: what it posts to is still there when it is waited for
};

} // namespace host
