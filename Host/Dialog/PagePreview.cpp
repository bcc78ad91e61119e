// One picture is made at a time. When another is wanted before it is ready, it is stopped, and the latest one is next.
#include "PagePreview.h"

#include "Jobs/PageRanges.h"

#include <utility>

namespace host {

PagePreview::PagePreview(PrintDialog &dialog, const PreviewTimes &times)
    : m_dialog(dialog)
    , m_times(times)
    , m_sheet(times)
{
    connect(&dialog, &PrintDialog::settingsChanged, this, &PagePreview::refresh);
    connect(&dialog, &PrintDialog::targetChanged, this, &PagePreview::refresh);
    connect(&dialog, &PrintDialog::amountChanged, this, &PagePreview::refresh);
    connect(&dialog, &PrintDialog::documentsChanged, this, [this] {
        m_page = 0;
        refresh();
    });
}

void PagePreview::setShown(bool isShown)
{
    m_isShown = isShown;
    if (isShown)
        refresh();
    else
        stop();
}

void PagePreview::setPage(int page)
{
    m_page = std::clamp(page, 0, std::max(0, m_count - 1));
    refresh();
}

void PagePreview::setBurnt(bool isBurnt)
{
    m_isBurnt = isBurnt;
    refresh();
}

void PagePreview::setSize(QSize size, const QRect &visible)
{
    const bool isOther = m_size != size || m_visible != visible;
    m_size = size;
    m_visible = visible;
    if (isOther)
        refresh();
}

std::optional<Sheet> PagePreview::sheet() const
{
    return m_dialog.target() ? m_dialog.target()->sheet() : std::nullopt;
}

std::optional<PDEPrintEffect> PagePreview::effect() const
{
    return m_dialog.target() ? m_dialog.target()->printEffect() : std::nullopt;
}

QSize PagePreview::dots() const
{
    const auto paper = sheet();
    const SheetDots dots(paper.value_or(Sheet()), paper ? m_dialog.target()->resolution() : Resolution());
    return paper && dots.isBearable() ? dots.size() : QSize();
}

/// Nil where there is nothing to be drawn.
std::optional<SheetView> PagePreview::wanted() const
{
    const auto paper = sheet();
    if (!m_isShown || !paper || m_dialog.documents().empty())
        return std::nullopt;
    const PrintTarget &target = *m_dialog.target();
    return SheetView{m_dialog.documents().front(),
                     *paper,
                     target.resolution(),
                     target.scaling(),
                     readPageRanges(m_dialog.amount().pages).value_or(QString()),
                     m_page,
                     m_isBurnt ? target.printEffect() : std::nullopt,
                     m_size,
                     m_visible};
}

/// Or was tried in vain.
bool PagePreview::isShown(const SheetView &view) const
{
    return m_shown && m_shown->hasSamePicture(view) &&
           (m_shown->visible == view.visible || m_progress.missing(view).isEmpty());
}

/// Whether the work that goes on is at something that is not wanted first. A whole page takes so long where it comes
/// in parts that whoever looks at another one, or chooses something, does not wait for it.
bool PagePreview::isAtAnother(const SheetView &view) const
{
    if (!view.hasSameSheet(*m_drawing))
        return true;
    if (!m_progress.isInParts || view.visible.isEmpty())
        return false;
    return !view.hasSamePicture(*m_drawing) || !(m_progress.missing(view) - m_drawing->area()).isEmpty();
}

void PagePreview::refresh()
{
    if (!m_isShown)
        return;
    const auto view = wanted();
    if (!view) {
        stop(); // what is still drawn is of nobody's document
        m_shown.reset();
        return show({}, m_dialog.documents().empty() ? tr("The document's pages will show here.")
                                                     : tr("The size of the paper is not known."));
    }
    if (m_isWorking) {
        if (isAtAnother(*view))
            stop();
        return;
    }
    if (!isShown(*view))
        begin(*view);
    else
        Q_EMIT changed();
}

void PagePreview::stop()
{
    m_isStopped = m_isWorking;
    m_work.requestStop();
}

void PagePreview::begin(const SheetView &view)
{
    m_isWorking = true;
    m_drawing = view;
    if (!view.hasSameSheet(m_sheet.view()))
        m_progress = {};
    m_work = BackgroundWork(
        *this,
        [this, view, sheet = std::exchange(m_sheet, DrawnSheet(m_times))](const std::stop_token &stop) mutable {
            const auto post = [this](const DrawnSheet &drawn) {
                QMetaObject::invokeMethod(
                    this,
                    [this, picture = drawn.picture(), progress = drawn.progress()] { showEarly(picture, progress); },
                    Qt::QueuedConnection);
            };
            return draw(std::move(sheet), view, post, stop);
        },
        [this](Picture done) { end(std::move(done)); });
}

/// `post` shows what there is, until the page is there as it will be.
template <class Post>
PagePreview::Picture PagePreview::draw(DrawnSheet sheet, const SheetView &view, const Post &post,
                                       const std::stop_token &stop)
{
    sheet.turnTo(view, stop);
    if (!sheet.isWhole()) {
        sheet.drawCoarse(stop);
        post(sheet);
        if (sheet.drawPart(stop))
            post(sheet);
        sheet.drawWhole(stop);
    }
    QImage picture = sheet.picture();
    return {std::move(sheet), std::move(picture)};
}

void PagePreview::end(Picture done)
{
    m_isWorking = false;
    m_sheet = std::move(done.sheet);
    m_progress = m_sheet.progress();
    m_count = m_sheet.count();
    m_page = std::clamp(m_page, 0, std::max(0, m_count - 1));
    const SheetView of = m_sheet.view();
    const QString problem = m_progress.problem;
    const bool wasStopped = std::exchange(m_isStopped, false);
    const auto view = wanted();
    if (view && (wasStopped || !view->hasSamePicture(of)))
        begin(*view);
    if (!view || wasStopped || !view->hasSameSheet(of))
        return; // nobody wants to see it any more
    m_shown = of;
    show(done.picture, problem);
}

/// It may have been on its way when it was not wanted any more.
void PagePreview::showEarly(const QImage &picture, const SheetProgress &progress)
{
    if (m_isStopped)
        return;
    m_progress = progress;
    show(picture, progress.problem);
    refresh(); // what is looked at may have changed before it was known to matter
}

void PagePreview::show(const QImage &picture, const QString &problem)
{
    m_picture = picture;
    m_problem = problem;
    Q_EMIT changed();
}

} // namespace host
