// Choosing the paper.
#include "PaperChooser.h"

#include "Fields.h"

#include "Foundation/Locale.h"
#include "Foundation/PlainText.h"
#include "Printing/Units.h"

#include <QComboBox>

#include <cmath>
#include <utility>

namespace host {

namespace {

constexpr int kMillisecondsToRead = 1000;

} // namespace

PaperChooser::PaperChooser(const Parts &parts, QObject *parent)
    : QObject(parent)
    , m_parts(parts)
    , m_pointsPerUnit(foundation::IsMetric() ? printing::kPointsPerMillimetre : printing::kPointsPerInch)
{
    for (LengthBox *const side : {m_parts.width, m_parts.height}) {
        side->setDecimals(foundation::IsMetric() ? 0 : 2);
        side->setSuffix(foundation::IsMetric() ? tr(" mm") : tr(" in"));
        connect(side, &LengthBox::corrected, this, [this, side](const QString &typed) {
            m_correction =
                tr("The printer does not take %1, but %2.", "a length, and limits").arg(typed, side->limits());
        });
        connect(side, &QDoubleSpinBox::editingFinished, this, &PaperChooser::chooseOther);
    }
    m_parts.ownSize->hide();
    connect(m_parts.papers, &QComboBox::activated, this, &PaperChooser::choose);
}

void PaperChooser::offer(const PrintTarget &target)
{
    m_papers = target.papers();
    m_parts.papers->clear();
    for (const PaperEntry &paper : m_papers)
        m_parts.papers->addItem(foundation::withoutControls(paper.text), paper.name);
    if (const auto limits = target.customSizeLimits())
        offerOwnSize(*limits);
    const ChosenPaper chosen = target.paper();
    m_parts.papers->setCurrentIndex(m_parts.papers->findData(chosen.name.value_or(QString())));
    if (chosen.size) {
        m_parts.width->setValue(chosen.size->width / m_pointsPerUnit);
        m_parts.height->setValue(chosen.size->height / m_pointsPerUnit);
    }
    m_settled = sides();
    showSides();
}

/// Whole steps within the limits: a size that a box shows is one that the printer takes.
void PaperChooser::offerOwnSize(const CustomSizeLimits &limits)
{
    m_parts.papers->addItem(tr("Custom size…"), printing::kUserDefinedPaper);
    const auto limit = [this](LengthBox &side, double least, double largest) {
        const double scale = std::pow(10, side.decimals());
        side.setLimits(std::ceil(least / m_pointsPerUnit * scale) / scale,
                       std::floor(largest / m_pointsPerUnit * scale) / scale);
    };
    limit(*m_parts.width, limits.smallest.width, limits.largest.width);
    limit(*m_parts.height, limits.smallest.height, limits.largest.height);
}

bool PaperChooser::isEmpty() const { return m_parts.papers->count() == 0; }

void PaperChooser::showSides()
{
    m_parts.ownSize->setVisible(m_parts.papers->currentData() == printing::kUserDefinedPaper);
}

/// Whoever only walks through the fields changes nothing: they show a size rounded.
void PaperChooser::chooseOther()
{
    if (sides() != m_settled || !m_correction.isEmpty())
        choose();
}

bool PaperChooser::commit()
{
    for (LengthBox *const side : {m_parts.width, m_parts.height})
        side->interpretText();
    if (m_parts.ownSize->isVisibleTo(m_parts.ownSize->parentWidget()))
        chooseOther();
    return !m_corrected.isValid() || m_corrected.elapsed() >= kMillisecondsToRead;
}

std::pair<double, double> PaperChooser::sides() const { return {m_parts.width->value(), m_parts.height->value()}; }

void PaperChooser::choose()
{
    showSides();
    m_settled = sides();
    const int index = m_parts.papers->currentIndex();
    if (index < 0)
        return;
    const QString name = m_parts.papers->currentData().toString();
    const auto size = name == printing::kUserDefinedPaper ? printing::Paper{m_parts.width->value() * m_pointsPerUnit,
                                                                            m_parts.height->value() * m_pointsPerUnit}
                                                          : m_papers[static_cast<std::size_t>(index)].size;
    Q_EMIT chose({name, size});
    if (m_correction.isEmpty())
        return;
    m_corrected.start();
    Q_EMIT corrected(std::exchange(m_correction, {}));
}

} // namespace host
