// The preview with what turns its pages.
#include "PreviewPane.h"

#include "Fields.h"

#include <QCheckBox>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

namespace host {

namespace {

QToolButton *arrow(Qt::ArrowType direction, const QString &name)
{
    auto *const button = new QToolButton;
    button->setArrowType(direction);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setAccessibleName(name);
    button->setToolTip(name);
    return button;
}

} // namespace

PreviewPane::PreviewPane(PrintDialog &dialog, QWidget *parent)
    : QWidget(parent)
    , m_dialog(dialog)
    , m_preview(dialog)
    , m_view(new PageView(m_preview))
    , m_back(arrow(Qt::LeftArrow, tr("Page before")))
    , m_number(new QLabel)
    , m_forward(arrow(Qt::RightArrow, tr("Next page")))
    , m_zoom(new QToolButton)
    , m_asPrinted(new QCheckBox(tr("As pr&inted")))
    , m_scaling(new Menu)
    , m_unseen(new QLabel)
{
    m_number->setAlignment(Qt::AlignCenter);
    m_number->setTextFormat(Qt::PlainText);
    m_unseen->setObjectName("unseen");
    m_unseen->setTextFormat(Qt::PlainText);
    m_unseen->setWordWrap(true);
    m_zoom->setText(tr("1:1", "a dot of the printer as a pixel"));
    m_zoom->setCheckable(true);
    m_zoom->setFocusPolicy(Qt::StrongFocus);
    m_zoom->setToolTip(tr("Each dot of the printer as a pixel of the screen"));
    m_zoom->setAccessibleName(m_zoom->toolTip());
    m_asPrinted->setChecked(true);
    m_asPrinted->setToolTip(tr("In black and white, with what the settings do to the page"));

    auto *const turning = new QHBoxLayout;
    turning->addWidget(m_back);
    turning->addWidget(m_number, 1);
    turning->addWidget(m_forward);
    turning->addWidget(m_zoom);
    auto *const rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(4);
    rows->addWidget(m_view, 1);
    rows->addLayout(turning);
    rows->addWidget(m_asPrinted);
    rows->addWidget(m_scaling);
    rows->addWidget(m_unseen);
    offerScalings();

    connect(m_back, &QToolButton::clicked, this, [this] { m_preview.setPage(m_preview.page() - 1); });
    connect(m_forward, &QToolButton::clicked, this, [this] { m_preview.setPage(m_preview.page() + 1); });
    connect(m_zoom, &QToolButton::toggled, this,
            [this](bool isOn) { m_view->setZoom(isOn ? PageView::Zoom::dots : PageView::Zoom::fit); });
    connect(m_view, &PageView::zoomChanged, this,
            [this] { m_zoom->setChecked(m_view->zoom() == PageView::Zoom::dots); });
    connect(m_asPrinted, &QCheckBox::toggled, &m_preview, &PagePreview::setBurnt);
    connect(&m_preview, &PagePreview::changed, this, &PreviewPane::follow);
    connect(m_scaling, &QComboBox::activated, this,
            [this] { m_dialog.setScaling(static_cast<Scaling>(m_scaling->currentData().toInt())); });
    follow();
}

void PreviewPane::offerScalings()
{
    m_scaling->addItem(tr("Size: automatic"), static_cast<int>(Scaling::automatic));
    m_scaling->addItem(tr("Size: as it is"), static_cast<int>(Scaling::none));
    m_scaling->addItem(tr("Size: fit to paper"), static_cast<int>(Scaling::fit));
    m_scaling->addItem(tr("Size: fill the paper"), static_cast<int>(Scaling::fill));
    m_scaling->setAccessibleName(tr("Size of the pages"));
    m_scaling->setToolTip(tr("Automatic: pages that are larger than the paper are made smaller"));
}

void PreviewPane::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    m_preview.setShown(true);
}

void PreviewPane::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    m_preview.setShown(false);
}

void PreviewPane::follow()
{
    const int count = m_preview.count();
    m_number->setText(count > 0 ? tr("Page %1 of %2").arg(QString::number(m_preview.page() + 1), QString::number(count))
                                : QString());
    m_view->setAccessibleDescription(QStringList{m_number->text(), m_preview.problem()}.join('\n').trimmed());
    m_back->setEnabled(m_preview.page() > 0);
    m_forward->setEnabled(m_preview.page() + 1 < count);
    const auto scaling = m_dialog.target() ? m_dialog.target()->scaling() : Scaling::automatic;
    const int index = m_scaling->findData(static_cast<int>(scaling));
    m_scaling->setCurrentIndex(std::max(0, index)); // nearly the same as automatic
    m_scaling->setEnabled(m_dialog.target());
    m_asPrinted->setEnabled(m_preview.effect().has_value());
    const QStringList unseen = m_dialog.target() ? m_dialog.target()->unseen() : QStringList();
    m_unseen->setText(tr("Not in this picture: %1").arg(unseen.join(tr(", "))));
    m_unseen->setVisible(!unseen.isEmpty() && !m_preview.picture().isNull());
}

} // namespace host
