// A sheet of paper on the screen, as it will come out of the printer.
#include "PageView.h"

#include "Foundation/Locale.h"
#include "Foundation/PlainText.h"
#include "Printing/Units.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScrollBar>
#include <QWheelEvent>

#include <cmath>

namespace host {

namespace {

constexpr int kEdge = 8; // pixels around the sheet
constexpr int kWidthInLetters = 40;
constexpr int kLeastFeed = 18; // pixels, so that its amount can be read

/// "26 mm", in the unit that the person uses.
QString amountText(double millimetres)
{
    const auto locale = foundation::Locale::current().locale();
    return foundation::IsMetric() ? locale.toString(millimetres, 'g', 4) + " mm"
                                  : locale.toString(millimetres / printing::kMillimetresPerInch, 'g', 3) + " in";
}

double feedOf(const std::optional<PDEPrintEffect> &effect)
{
    return effect && effect->feed ? *effect->feed * printing::kPointsPerMillimetre : 0;
}

} // namespace

PageView::PageView(PagePreview &preview, QWidget *parent)
    : QAbstractScrollArea(parent)
    , m_preview(preview)
{
    setFocusPolicy(Qt::TabFocus);
    setFrameShape(QFrame::StyledPanel);
    setAccessibleName(tr("Preview"));
    connect(&preview, &PagePreview::changed, this, &PageView::follow);
}

QSize PageView::sizeHint() const { return {kWidthInLetters * fontMetrics().averageCharWidth(), 0}; }
QSize PageView::minimumSizeHint() const { return {sizeHint().width(), sizeHint().width() / 2}; }

void PageView::setZoom(Zoom zoom)
{
    if (std::exchange(m_zoom, zoom) == zoom)
        return;
    follow();
    Q_EMIT zoomChanged();
}

double PageView::pixelsAPoint(const Sheet &sheet, double feedInPoints) const
{
    if (m_zoom == Zoom::dots && !m_preview.dots().isEmpty())
        return m_preview.dots().width() / sheet.size.width / devicePixelRatioF();
    const QSizeF room = QSizeF(maximumViewportSize()) - QSizeF(2 * kEdge, 2 * kEdge);
    const double least = feedInPoints > 0 ? kLeastFeed : 0;
    return std::max(0.01, std::min({room.width() / sheet.size.width, room.height() / (sheet.size.height + feedInPoints),
                                    (room.height() - least) / sheet.size.height}));
}

std::optional<PageView::Layout> PageView::placed() const
{
    const auto sheet = m_preview.sheet();
    if (!sheet || sheet->size.width <= 0 || sheet->size.height <= 0)
        return std::nullopt;
    const double fed = feedOf(m_preview.effect());
    const double scale = pixelsAPoint(*sheet, fed);
    const QSizeF size(std::round(sheet->size.width * scale), std::round(sheet->size.height * scale));
    const double feed = fed > 0 ? std::max<double>(kLeastFeed, std::round(fed * scale)) : 0;
    const QSizeF whole = QSizeF(size.width(), size.height() + feed) + QSizeF(2 * kEdge, 2 * kEdge);
    const QSizeF room = viewport()->size();
    const QPointF corner(
        std::max(0.0, std::floor((room.width() - whole.width()) / 2)) + kEdge - horizontalScrollBar()->value(),
        std::max(0.0, std::floor((room.height() - whole.height()) / 2)) + kEdge - verticalScrollBar()->value());
    const QRectF on(corner, size);
    return Layout{on, feed > 0 ? QRectF(on.bottomLeft(), QSizeF(size.width(), feed)) : QRectF(), scale};
}

/// Of the sheet; empty where all that is seen is around it.
QRect PageView::visibleDots(const Layout &layout) const
{
    const QSizeF dots = m_preview.dots();
    const QRectF seen = (QRectF(viewport()->rect()) & layout.sheet).translated(-layout.sheet.topLeft());
    const double across = dots.width() / layout.sheet.width();
    const double along = dots.height() / layout.sheet.height();
    const QRectF inDots(seen.left() * across, seen.top() * along, seen.width() * across, seen.height() * along);
    return inDots.toAlignedRect() & QRect({}, m_preview.dots());
}

/// For a picture of the right size, or the part of it that is seen first.
void PageView::ask()
{
    const auto layout = placed();
    if (layout && m_zoom == Zoom::dots)
        m_preview.setSize({}, visibleDots(*layout));
    else if (layout)
        m_preview.setSize((layout->sheet.size() * devicePixelRatioF()).toSize());
}

/// Asks for a picture, and lets the bars know what there is to see.
void PageView::follow()
{
    const auto layout = placed();
    const bool scrolls = layout && m_zoom == Zoom::dots;
    const QSizeF whole = scrolls ? layout->sheet.united(layout->feed).size() + QSizeF(2 * kEdge, 2 * kEdge) : QSizeF();
    horizontalScrollBar()->setPageStep(viewport()->width());
    verticalScrollBar()->setPageStep(viewport()->height());
    horizontalScrollBar()->setRange(0, std::max(0, static_cast<int>(whole.width()) - viewport()->width()));
    verticalScrollBar()->setRange(0, std::max(0, static_cast<int>(whole.height()) - viewport()->height()));
    ask();
    viewport()->update();
}

void PageView::scrollContentsBy(int, int)
{
    ask();
    viewport()->update();
}

void PageView::resizeEvent(QResizeEvent *event)
{
    QAbstractScrollArea::resizeEvent(event);
    follow();
}

void PageView::paintEvent(QPaintEvent *)
{
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), palette().color(QPalette::Mid));
    const auto layout = placed();
    const auto sheet = m_preview.sheet();
    const bool isThere = layout && sheet && (m_preview.problem().isEmpty() || !m_preview.picture().isNull());
    if (isThere) {
        paintSheet(painter, *layout, *sheet);
        paintFeed(painter, *layout);
    }
    if (!m_preview.problem().isEmpty())
        paintProblem(painter, !isThere);
}

/// In place of the sheet, or at the foot of what there is of it.
void PageView::paintProblem(QPainter &painter, bool isAlone) const
{
    const QString text = foundation::withoutControls(m_preview.problem());
    const QRect room = viewport()->rect().adjusted(kEdge, kEdge, -kEdge, -kEdge);
    const int flags = (isAlone ? Qt::AlignVCenter : Qt::AlignBottom) | Qt::AlignHCenter | Qt::TextWordWrap;
    if (!isAlone)
        painter.fillRect(painter.boundingRect(room, flags, text).adjusted(-kEdge, -kEdge / 2, kEdge, kEdge / 2),
                         palette().color(QPalette::Window));
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(room, flags, text);
}

/// Paper is white whatever the theme; what the printer can't reach is a little darker.
void PageView::paintSheet(QPainter &painter, const Layout &layout, const Sheet &sheet) const
{
    painter.fillRect(layout.sheet, Qt::white);
    if (!m_preview.picture().isNull()) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
        painter.drawImage(layout.sheet, m_preview.picture());
    }
    const QRectF &area = sheet.printable;
    const QRectF reached(layout.sheet.topLeft() + area.topLeft() * layout.scale, area.size() * layout.scale);
    QPainterPath margins;
    margins.addRect(layout.sheet);
    margins.addRect(reached); // even and odd: what is in both is not filled
    painter.fillPath(margins, QColor(0, 0, 0, 20));
    painter.setPen(QPen(palette().color(QPalette::Shadow), 1));
    painter.drawRect(layout.sheet.adjusted(-0.5, -0.5, 0.5, 0.5));
}

void PageView::paintFeed(QPainter &painter, const Layout &layout) const
{
    const auto effect = m_preview.effect();
    if (!layout.feed.isEmpty()) {
        painter.fillRect(layout.feed, Qt::white);
        painter.fillRect(layout.feed, QBrush(QColor(0, 0, 0, 90), Qt::BDiagPattern));
        painter.setPen(QPen(palette().color(QPalette::Shadow), 1));
        painter.drawRect(layout.feed.adjusted(-0.5, -0.5, 0.5, 0.5));
        const QString text = amountText(*effect->feed);
        QRectF label = painter.fontMetrics().boundingRect(text).adjusted(-4, 0, 4, 0);
        label.moveCenter(layout.feed.center());
        painter.fillRect(label, Qt::white);
        painter.setPen(Qt::black);
        painter.drawText(label, Qt::AlignCenter, text);
    }
    if (effect && effect->perforated) {
        painter.setPen(QPen(Qt::black, 2, Qt::DashLine));
        painter.drawLine(layout.sheet.bottomLeft(), layout.sheet.bottomRight());
    }
}

/// Turns pages where there is nothing to scroll.
void PageView::wheelEvent(QWheelEvent *event)
{
    const int turn = event->angleDelta().y() > 0 ? -1 : 1;
    if (event->angleDelta().y() == 0)
        return QAbstractScrollArea::wheelEvent(event);
    if (event->modifiers() & Qt::ControlModifier)
        setZoom(turn < 0 ? Zoom::dots : Zoom::fit);
    else if (m_zoom == Zoom::dots)
        return QAbstractScrollArea::wheelEvent(event);
    else
        m_preview.setPage(m_preview.page() + turn);
    event->accept();
}

void PageView::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_PageUp: return m_preview.setPage(m_preview.page() - 1);
    case Qt::Key_PageDown: return m_preview.setPage(m_preview.page() + 1);
    case Qt::Key_Home: return m_preview.setPage(0);
    case Qt::Key_End: return m_preview.setPage(m_preview.count() - 1);
    case Qt::Key_Plus: return setZoom(Zoom::dots);
    case Qt::Key_Minus: return setZoom(Zoom::fit);
    default: return QAbstractScrollArea::keyPressEvent(event);
    }
}

} // namespace host
