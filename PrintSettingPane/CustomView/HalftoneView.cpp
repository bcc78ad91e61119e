// The halftone preview.
#include "HalftoneView.h"

#include "Foundation/Bundle.h"

#include <QApplication>
#include <QPainter>

namespace {

/// In the order of the group's rows.
constexpr std::array kPictures{"Binary", "Dither", "Diffusion"};

/// Between the view's lower left corner and the picture's, in points. A deliberate margin.
constexpr int kInset = 1;

/// The picture, in the high density where the screen has the dots for it and the bundle has such a picture.
QPixmap loaded(const QString &name, const foundation::Bundle &bundle)
{
    const auto dense = qApp->devicePixelRatio() > 1 ? bundle.pathForImageResource(name + "@2x") : std::nullopt;
    return QPixmap(dense ? *dense : bundle.pathForImageResource(name).value_or(QString()));
}

} // namespace

bool HalftoneView_v100_::initWithFrame(const QRect &frame, const foundation::Bundle &bundle)
{
    setGeometry(frame);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    m_bundle = &bundle;
    for (std::size_t i = 0; i < kPictures.size(); ++i)
        mHalfoneImg[i] = loaded(kPictures[i], bundle);
    setAccessibleName(bundle.localizedString("AX_HalftonePreview"));
    mHlftnMatrix = {};
    return true;
}

const QPixmap *HalftoneView_v100_::targetDrawImage() const
{
    const std::int32_t condition = halftoneCondition();
    if (condition < 0 || condition >= std::ssize(mHalfoneImg))
        return nullptr;
    const QPixmap &image = mHalfoneImg[static_cast<std::size_t>(condition)];
    return image.isNull() ? nullptr : &image;
}

void HalftoneView_v100_::setHlftnMatrix(const toolkit::RadioMatrix &matrix)
{
    mHlftnMatrix = matrix;
    setNeedsDisplay();
}

QString HalftoneView_v100_::picture() const
{
    const QPixmap *const image = targetDrawImage();
    for (std::size_t i = 0; i < mHalfoneImg.size(); ++i)
        if (&mHalfoneImg[i] == image)
            return kPictures[i];
    return {};
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
