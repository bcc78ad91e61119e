// A sheet of paper on the screen, as it will come out of the printer.
#pragma once

#include "Dialog/PagePreview.h"

#include <QAbstractScrollArea>

namespace host {

class PageView : public QAbstractScrollArea
{
    Q_OBJECT

public:
    enum class Zoom { fit, dots };

    /// The preview has to outlive the view.
    explicit PageView(PagePreview &preview, QWidget *parent = nullptr);

    Zoom zoom() const { return m_zoom; }
    void setZoom(Zoom zoom);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void zoomChanged();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    /// In the pixels of the widget, whatever the density of the screen.
    struct Layout
    {
        QRectF sheet;
        QRectF feed;      // empty when none is fed
        double scale = 1; // of points
    };
    std::optional<Layout> placed() const;
    double pixelsAPoint(const Sheet &sheet, double feedInPoints) const;
    void follow();
    void ask();
    QRect visibleDots(const Layout &layout) const;
    void paintProblem(QPainter &painter, bool isAlone) const;
    void paintSheet(QPainter &painter, const Layout &layout, const Sheet &sheet) const;
    void paintFeed(QPainter &painter, const Layout &layout) const;

    PagePreview &m_preview;
    Zoom m_zoom = Zoom::fit;
};

} // namespace host
