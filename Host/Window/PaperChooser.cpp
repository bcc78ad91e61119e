// Choosing the paper.
#include "PaperChooser.h"

#include "Foundation/Locale.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>

#include <cmath>

namespace host {

namespace {

constexpr double kPointsPerInch = 72;
constexpr double kPointsPerMillimetre = 72 / 25.4;

} // namespace

PaperChooser::PaperChooser()
    : m_names(new QComboBox)
    , m_ownSize(new QWidget)
    , m_width(new QDoubleSpinBox)
    , m_height(new QDoubleSpinBox)
{
    const bool metric = foundation::Locale::current().usesMetricSystem();
    m_pointsPerUnit = metric ? kPointsPerMillimetre : kPointsPerInch;
    auto *own = new QHBoxLayout(m_ownSize);
    own->setContentsMargins(0, 0, 0, 0);
    for (QDoubleSpinBox *side : {m_width, m_height}) {
        side->setDecimals(metric ? 0 : 2);
        side->setSuffix(metric ? tr(" mm") : tr(" in"));
        connect(side, &QDoubleSpinBox::editingFinished, this, &PaperChooser::choose);
    }
    m_width->setAccessibleName(tr("Paper width"));
    m_height->setAccessibleName(tr("Paper height"));
    own->addWidget(m_width);
    own->addWidget(new QLabel("×"));
    own->addWidget(m_height);
    m_ownSize->hide();

    addWidget(m_names, 1);
    addWidget(m_ownSize);
    connect(m_names, &QComboBox::activated, this, &PaperChooser::choose);
}

void PaperChooser::offer(const std::vector<PPDDocument::PageSize> &papers, const QString &name)
{
    m_sizes = papers;
    m_names->clear();
    for (const auto &size : m_sizes)
        m_names->addItem(size.text, size.name);
    m_names->setCurrentIndex(m_names->findData(name));
    m_ownSize->hide();
}

void PaperChooser::offer(const DialogSession &session)
{
    offer(session.papers(), {});
    const ppd_file_t &ppd = *session.ppd().file();
    if (session.ppd().hasCustomPageSize()) {
        m_names->addItem(tr("Custom size…"), kUserDefinedPaper);
        // Whole steps within the limits: a size that the box shows is one that the printer takes.
        const auto limit = [&](QDoubleSpinBox &side, double least, double largest) {
            const double scale = std::pow(10, side.decimals());
            side.setRange(std::ceil(least / m_pointsPerUnit * scale) / scale,
                          std::floor(largest / m_pointsPerUnit * scale) / scale);
        };
        limit(*m_width, ppd.custom_min[0], ppd.custom_max[0]);
        limit(*m_height, ppd.custom_min[1], ppd.custom_max[1]);
    }
    m_names->setCurrentIndex(m_names->findData(session.paper().name.value_or(QString())));
    if (session.paper().size) {
        m_width->setValue(session.paper().size->width / m_pointsPerUnit);
        m_height->setValue(session.paper().size->height / m_pointsPerUnit);
    }
    m_ownSize->setVisible(m_names->currentData() == kUserDefinedPaper);
}

void PaperChooser::setChoosable(bool choosable)
{
    m_names->setEnabled(choosable);
    m_ownSize->setEnabled(choosable);
}

std::optional<ChosenPaper> PaperChooser::chosen() const
{
    if (m_names->currentIndex() < 0)
        return std::nullopt;
    const QString name = m_names->currentData().toString();
    if (name == kUserDefinedPaper)
        return ChosenPaper{name,
                           printing::Paper{m_width->value() * m_pointsPerUnit, m_height->value() * m_pointsPerUnit}};
    return ChosenPaper{name, m_sizes[static_cast<std::size_t>(m_names->currentIndex())].paper};
}

void PaperChooser::choose()
{
    m_ownSize->setVisible(m_names->currentData() == kUserDefinedPaper);
    Q_EMIT chose();
}

} // namespace host
