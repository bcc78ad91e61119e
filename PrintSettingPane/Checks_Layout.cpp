// Checks of the places that a PPD gives to controls.
#include "Checks.h"

#include <QRegularExpression>
#include <QWidget>

#include <algorithm>
#include <array>

namespace checks {

namespace {

constexpr std::array kOriginRows{
    OriginRow{"QnPerforatedStrOrigin", "QnPerforated", "mPerforatedStr", true},
    OriginRow{"QnPerforatedPopBtnOrigin", "QnPerforated", "mPerforatedPopUp", true},
    OriginRow{"QnOptionStrOrigin", "QnReversal", "mOptionTitle", false}, // the basic panel's, on a page not shown
    OriginRow{"QnReversalChkBtnOrigin", "QnReversal", "mReversalChkBx", false},
    OriginRow{"QnMirrorChkBtnOrigin", "QnMirror", "mMirrorChkBx", true},
    OriginRow{"QnBiDiPrintChkBtnOrigin", "QnBiDiPrint", "mBiDiPrintChkBx", true},
    OriginRow{"QnDensityStrOrigin", "QnDensity", "mDensityStr", false},
    OriginRow{"QnDensityPopBtnOrigin", "QnDensity", "mDensityPopUp", false},
    OriginRow{"QnSpeedStrOrigin", "QnSpeed", "mSpeedStr", false},
    OriginRow{"QnSpeedPopBtnOrigin", "QnSpeed", "mSpeedPopUp", false},
    OriginRow{"QnMediaStrOrigin", "QnMedia", "mMediaStr", false},
    OriginRow{"QnMediaPopBtnOrigin", "QnMedia", "mMediaPopUp", false},
    OriginRow{"QnFormFeedModeStrOrigin", "QnFormFeedMode", "mFormFeedModeStr", false},
    OriginRow{"QnFormFeedModePopBtnOrigin", "QnFormFeedMode", "mFormFeedModePopUp", false},
    OriginRow{"QnPaperFeedStrOrigin", "QnPaperFeed", "mPaperFeedStr", false},
    OriginRow{"QnPaperFeedPopBtnOrigin", "QnPaperFeed", "mPaperFeedPopUp", false},
    OriginRow{"QnRollPrintCaseStrOrigin", "QnRollPrinterCase", "mRollPrintStr", false},
    OriginRow{"QnRollPrintCasePopBtnOrigin", "QnRollPrinterCase", "mRollPrintPopUp", false},
};

bool isPoint(const QString &text)
{
    static const QRegularExpression form(R"(^\s*\{\s*[-+]?[0-9.]+\s*,\s*[-+]?[0-9.]+\s*\}\s*$)");
    return form.match(text).hasMatch();
}

/// The controls of one panel by name.
class Controls
{
public:
    explicit Controls(const PDEPanel &panel)
        : m_all(panel.inspection().isInterfaceLoaded() ? panel.inspection().controls()
                                                       : std::vector<PDEPanelInspection::Control>())
    {}

    /// Null where it is missing, taken off, or on a page that is not shown.
    QWidget *onShownPage(const char *name) const
    {
        const auto found = std::ranges::find(m_all, QLatin1String(name), &PDEPanelInspection::Control::name);
        QWidget *const widget = found == m_all.end() ? nullptr : found->widget;
        QWidget *const page = widget ? widget->parentWidget() : nullptr;
        return page && page->isVisibleTo(page->window()) ? widget : nullptr;
    }
    /// The first control beside this one that lies under or over its place; empty when none does.
    QString over(const QWidget &widget, const QRect &place) const
    {
        for (const auto &[name, other] : m_all)
            if (other && other != &widget && other->parentWidget() == widget.parentWidget() && !other->isHidden() &&
                other->geometry().intersects(place))
                return name;
        return {};
    }

private:
    std::vector<PDEPanelInspection::Control> m_all;
};

/// Where the control of a row goes by the PPD, also while it is withheld from a person and so was not put there.
QRect placeOf(const QWidget &widget, const QPointF &origin)
{
    const auto dots = [](double points) {
        return qRound(std::clamp<double>(points, -QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
    };
    const int top = widget.parentWidget()->height() - widget.height() - dots(origin.y());
    return {QPoint(dots(origin.x()), top), widget.size()};
}

/// What is wrong with where the control of a row stands; empty when nothing is.
QString wrongPlace(const OriginRow &row, const File &file)
{
    const QPointF origin = PDEUtilsMethod::originItem(file.ppd(), row.attribute);
    for (const auto &panel : file.panels()) {
        const Controls controls(*panel);
        const QWidget *const widget = controls.onShownPage(row.control);
        if (!widget)
            continue;
        const QRect place = placeOf(*widget, origin);
        if (!widget->parentWidget()->rect().contains(place))
            return QString("lies in part outside of the page of %1 x %2")
                .arg(widget->parentWidget()->width())
                .arg(widget->parentWidget()->height());
        if (const QString other = controls.over(*widget, place); !other.isEmpty())
            return QString("lies on top of %1").arg(other);
    }
    return {};
}

} // namespace

std::span<const OriginRow> originRows() { return kOriginRows; }

void findOrigins(File &file)
{
    for (const OriginRow &row : kOriginRows) {
        if (!row.isSeen || !file.option(row.option))
            continue;
        file.addIfContradicted(kOrigin, row.attribute, row.option);
        const auto value = PDEUtilsMethod::ppdAttrValStr(file.ppd(), row.attribute);
        const int line = file.lineOf(row.attribute, row.option);
        const QString wrong = wrongPlace(row, file);
        if (!value || !isPoint(*value))
            file.add(kOrigin, line,
                     QString("%1 is %2: the control stands in the lower left corner")
                         .arg(row.attribute, value ? QString("no point \"{x, y}\"") : QString("missing")),
                     row.option);
        else if (!wrong.isEmpty())
            file.add(kOrigin, line, QString("%1: the control %2").arg(row.attribute, wrong), row.option);
    }
}

void findUnusedOrigins(File &file)
{
    const PDEStatement *first = nullptr;
    int count = 0;
    for (const PDEStatement &each : file.statements())
        if (std::ranges::any_of(kOriginRows,
                                [&](const auto &row) { return !row.isSeen && each.keyword == row.attribute; })) {
            first = first ? first : &each;
            ++count;
        }
    if (first)
        file.add(kOriginUnused, first->line,
                 QString("%1 %2 known and not applied: the control that people see stays where the interface file "
                         "has it")
                     .arg(QString::fromUtf8(first->keyword),
                          count == 1 ? QString("is") : QString("and %1 others are").arg(count - 1)));
}

} // namespace checks
