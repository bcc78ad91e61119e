// One picture is made at a time. When another is wanted before it is ready, it is stopped, and the latest one is next.
#include "PagePreview.h"

#include "Jobs/PageRanges.h"
#include "Pages/Shrinking.h"

#include <utility>

namespace host {

namespace {

constexpr double kCoarse = 4; // times fewer dots a side, for the first picture of a page

bool haveSamePages(const PagePreview::View &one, const PagePreview::View &other)
{
    return one.document == other.document && one.sheet == other.sheet && one.scaling == other.scaling &&
           one.ranges == other.ranges;
}

bool haveSameSheet(const PagePreview::View &one, const PagePreview::View &other)
{
    return haveSamePages(one, other) && one.page == other.page && one.resolution == other.resolution;
}

QImage pictureOf(const QImage &sheet, const PagePreview::View &view)
{
    return view.size.isEmpty() ? sheet : shrunk(sheet, view.size);
}

} // namespace

PagePreview::PagePreview(PrintDialog &dialog)
    : m_dialog(dialog)
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

void PagePreview::setSize(QSize size)
{
    if (std::exchange(m_size, size) != size)
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

/// Nil where there is nothing to be drawn.
std::optional<PagePreview::View> PagePreview::wanted() const
{
    const auto paper = sheet();
    if (!m_isShown || !paper || m_dialog.documents().empty())
        return std::nullopt;
    const PrintTarget &target = *m_dialog.target();
    return View{m_dialog.documents().front(),
                *paper,
                target.resolution(),
                target.scaling(),
                readPageRanges(m_dialog.amount().pages).value_or(QString()),
                m_page,
                m_isBurnt ? target.printEffect() : std::nullopt,
                m_size};
}

void PagePreview::refresh()
{
    if (!m_isShown)
        return;
    const auto view = wanted();
    if (!view) {
        stop(); // what is still drawn is of nobody's document
        m_shown.reset();
        return tell(m_dialog.documents().empty() ? tr("The document's pages will show here.")
                                                 : tr("The size of the paper is not known."));
    }
    if (m_isWorking) {
        if (!haveSameSheet(*view, *m_drawing))
            stop();
        return;
    }
    if (view != m_shown)
        begin(*view);
    else
        Q_EMIT changed();
}

void PagePreview::stop()
{
    m_isStopped = m_isWorking;
    m_work.requestStop();
}

void PagePreview::begin(const View &view)
{
    m_isWorking = true;
    m_drawing = view;
    m_work = BackgroundWork(
        *this,
        [this, view, cache = std::exchange(m_cache, {})](const std::stop_token &stop) mutable {
            const auto post = [this](const QImage &picture) {
                QMetaObject::invokeMethod(this, [this, picture] { showFirst(picture); }, Qt::QueuedConnection);
            };
            return draw(view, std::move(cache), post, stop);
        },
        [this](Picture done) { end(std::move(done)); });
}

/// `post` shows a first picture, until the page is there as it will be.
template <class Post>
PagePreview::Picture PagePreview::draw(View view, Cache cache, const Post &post, const std::stop_token &stop)
{
    if (!cache.pages || !haveSamePages(cache.of, view)) {
        cache = {};
        auto pages = PrintedPages::of(view.document, view.sheet, view.scaling, view.ranges, stop);
        if (!pages)
            return {view, {}, pages.problem()};
        cache.pages = *std::move(pages);
    }
    const SheetDots dots(view.sheet, view.resolution);
    view.page = std::min(view.page, cache.pages->count() - 1); // there may be fewer than before
    if (cache.grey.isNull() || !haveSameSheet(cache.of, view)) {
        cache.grey = {};
        const SheetDots coarse(view.sheet, {view.resolution.across / kCoarse, view.resolution.along / kCoarse});
        if (const auto first = cache.pages->sheet(view.page, coarse, stop))
            post(pictureOf(*first, view));
        auto grey = cache.pages->sheet(view.page, dots, stop);
        if (!grey)
            return {view, std::move(cache), grey.problem()};
        cache.grey = *std::move(grey);
    }
    cache.of = view;
    QImage picture = pictureOf(dots.burnt(cache.grey, view.effect), view);
    return {view, std::move(cache), std::move(picture)};
}

void PagePreview::end(Picture done)
{
    m_isWorking = false;
    m_cache = std::move(done.cache);
    m_count = m_cache.pages ? m_cache.pages->count() : 0;
    m_page = std::clamp(m_page, 0, std::max(0, m_count - 1));
    m_dots = SheetDots(done.of.sheet, done.of.resolution).size();
    const bool wasStopped = std::exchange(m_isStopped, false);
    const auto view = wanted();
    if (view && (wasStopped || *view != done.of))
        begin(*view);
    if (!view || wasStopped || !haveSameSheet(*view, done.of))
        return; // nobody wants to see it any more
    m_shown = std::move(done.of);
    if (done.picture)
        show(*done.picture);
    else
        tell(done.picture.problem().sentence);
}

/// It may have been on its way when it was not wanted any more.
void PagePreview::showFirst(const QImage &picture)
{
    if (!m_isStopped)
        show(picture);
}

void PagePreview::show(const QImage &picture)
{
    m_picture = picture;
    m_problem.clear();
    Q_EMIT changed();
}

void PagePreview::tell(const QString &problem)
{
    m_picture = {};
    m_problem = problem;
    Q_EMIT changed();
}

} // namespace host
