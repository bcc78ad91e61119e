// What the pages of the dialog's document will look like, kept up with every choice. It costs nothing until it is
// shown.
#pragma once

#include "BackgroundWork.h"
#include "DrawnSheet.h"
#include "PrintDialog.h"

namespace host {

class PagePreview : public QObject
{
    Q_OBJECT

public:
    /// The dialog has to outlive the preview.
    explicit PagePreview(PrintDialog &dialog, const PreviewTimes &times = {});

    /// Nothing is read or drawn while it is not shown.
    void setShown(bool isShown);
    /// From 0 on; held within the pages that there are.
    void setPage(int page);
    /// As printed, or the plain page.
    void setBurnt(bool isBurnt);
    /// So large is the whole sheet to be, in pixels; empty: as large as it has dots. Of a page that takes its time
    /// `visible`, in those dots, comes before the rest.
    void setSize(QSize size, const QRect &visible = {});

    int page() const { return m_page; }
    /// Of the pages that are printed; 0 while that is not known.
    int count() const { return m_count; }
    /// The sheet; null as long as there is nothing to be seen.
    const QImage &picture() const { return m_picture; }
    /// Why that is so, or why no more than parts of it will come, in one sentence; empty while it is made.
    const QString &problem() const { return m_problem; }
    /// Nil where nothing can be shown.
    std::optional<Sheet> sheet() const;
    std::optional<PDEPrintEffect> effect() const;
    /// Of the sheet; empty where nothing can be shown.
    QSize dots() const;
    /// Whether a better picture is on its way.
    bool isBusy() const { return m_isWorking; }

Q_SIGNALS:
    void changed();

private:
    struct Picture
    {
        DrawnSheet sheet;
        QImage picture;
    };

    std::optional<SheetView> wanted() const;
    bool isShown(const SheetView &view) const;
    bool isAtAnother(const SheetView &view) const;
    void refresh();
    void stop();
    void begin(const SheetView &view);
    void end(Picture done);
    void showEarly(const QImage &picture, const SheetProgress &progress);
    void show(const QImage &picture, const QString &problem);
    template <class Post>
    static Picture draw(DrawnSheet sheet, const SheetView &view, const Post &post, const std::stop_token &stop);

    PrintDialog &m_dialog;
    PreviewTimes m_times;
    bool m_isShown = false;
    bool m_isBurnt = true;
    int m_page = 0;
    QSize m_size;
    QRect m_visible;

    QImage m_picture;
    QString m_problem;
    DrawnSheet m_sheet; // with the work as long as that lasts
    SheetProgress m_progress;
    std::optional<SheetView> m_drawing;
    std::optional<SheetView> m_shown;
    bool m_isWorking = false;
    bool m_isStopped = false; // the work, because nobody wants its picture any more
    int m_count = 0;
    BackgroundWork m_work; // last: what it posts to is still there when it is waited for
};

} // namespace host
