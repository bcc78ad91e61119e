// The halftone preview.
#include "HalftoneView.h"

#include "Foundation/Bundle.h"

#include <QApplication>
#include <QImageReader>
#include <QPainter>

namespace {

/// In the order of the group's rows.
constexpr std::array kPictures{"Binary", "Dither", "Diffusion"};

/// Between the view's lower left corner and the picture's, in points. A deliberate margin.
constexpr int kInset = 1;

/// The picture, in the high density where the screen has the dots for it and the bundle has such a picture. Its format
/// is not guessed: every image plug-in of the machine would be loaded for that.
QPixmap loaded(const QString &name, const foundation::Bundle &bundle)
{
    const auto dense = qApp->devicePixelRatio() > 1 ? bundle.pathForImageResource(name + "@2x") : std::nullopt;
    const auto path = dense ? dense : bundle.pathForImageResource(name);
    if (!path)
        return {};
    QImageReader reader(*path, "png");
    reader.setAutoDetectImageFormat(false);
    return QPixmap::fromImageReader(&reader);
}

} // namespace

bool HalftoneView_v100_::initWithFrame(const QRect &frame, const foundation::Bundle &bundle)
{
    setGeometry(frame);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    m_bundle = &bundle;
    mHalfoneImg = {};
    setAccessibleName(bundle.localizedString("AX_HalftonePreview"));
    mHlftnMatrix = {};
    return true;
}

const QPixmap *HalftoneView_v100_::targetDrawImage() const
{
    const std::int32_t condition = halftoneCondition();
    if (condition < 0 || condition >= std::ssize(mHalfoneImg))
        return nullptr;
    const auto index = static_cast<std::size_t>(condition);
    if (!mHalfoneImg[index])
        mHalfoneImg[index] = loaded(kPictures[index], *m_bundle);
    return mHalfoneImg[index]->isNull() ? nullptr : &*mHalfoneImg[index];
}

void HalftoneView_v100_::setHlftnMatrix(const toolkit::RadioMatrix &matrix)
{
    mHlftnMatrix = matrix;
    setNeedsDisplay();
}

QString HalftoneView_v100_::picture() const
{
    return targetDrawImage() ? kPictures[static_cast<std::size_t>(halftoneCondition())] : QString();
}

void HalftoneView_v100_::setNeedsDisplay()
{
    const QString name = picture();
    setAccessibleDescription(m_bundle->localizedString("AX_HalftonePreview_" + (name.isEmpty() ? "None" : name)));
    update();
}

void HalftoneView_v100_::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
    const QPixmap *const image = targetDrawImage();
    if (!image)
        return;
    const QSizeF size = image->deviceIndependentSize();
    QPainter(this).drawPixmap(QPointF(kInset, height() - kInset - size.height()), *image);
}
