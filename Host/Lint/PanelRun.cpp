// The real panels, run through every paper and every choice of the menus that decide.
#include "PanelRun.h"

#include "CommonChecks.h"

#include "Toolkit/Controls.h"

#include <QSet>

#include <algorithm>
#include <ctime>

namespace host {

namespace {

// A printer of this family has some hundred settings; the limits are for PPDs that nobody prints with.
constexpr qsizetype kMostPapers = 60;
constexpr int kMostItems = 12;
constexpr std::clock_t kProcessorTime = CLOCKS_PER_SEC; // for all of it

constexpr int kMostSaves = 4; // two are enough for what settles

QString nameOf(const ChosenPaper &paper) { return paper.name.value_or(QString()); }

/// By position; nil for a control of another kind.
std::optional<int> shownBy(const QWidget &widget)
{
    if (const auto *menu = qobject_cast<const toolkit::PopUpControl *>(&widget))
        return menu->currentIndex();
    if (const auto *radio = qobject_cast<const toolkit::RadioControl *>(&widget))
        return radio->selectedRow();
    if (const auto *box = qobject_cast<const toolkit::CheckControl *>(&widget))
        return box->state();
    return std::nullopt;
}

/// What a constraint is about.
struct Side
{
    QString option;
    QString choice; // empty: whatever is not off
};

std::vector<Side> sidesOf(const PDEStatement &constraint)
{
    std::vector<Side> sides;
    for (const QString &word : QString::fromUtf8(constraint.value).simplified().split(' '))
        if (word.startsWith('*'))
            sides.push_back({word.mid(1), {}});
        else if (!sides.empty())
            sides.back().choice = word;
    return sides;
}

/// Whether a marked choice is one that a constraint is about.
bool holds(const Side &side, const QString &marked)
{
    static const QStringList kOff{"", "None", "Off", "False"}; // as the library has it
    return side.choice.isEmpty() ? !kOff.contains(marked, Qt::CaseInsensitive) : side.choice == marked;
}

class PanelRun
{
public:
    PanelRun(DialogSession &session, const std::vector<PDEOptionControl> &controls, const StatementIndex &index,
             Findings &findings)
        : m_session(session)
        , m_controls(controls)
        , m_index(index)
        , m_findings(findings)
        , m_end(std::clock() + kProcessorTime)
    {
        m_session.setListener(
            {.panelMarks = [this](const QString &key, const QString &choice) { m_asked[key] = choice; },
             .changed = {}});
    }
    ~PanelRun() { m_session.setListener({}); }
    PanelRun(const PanelRun &) = delete;
    PanelRun &operator=(const PanelRun &) = delete;
    void run();

private:
    /// A step of a person: the item of a menu.
    struct Pick
    {
        const PDEOptionControl *control;
        int item;
    };
    using Picks = std::vector<Pick>;

    QWidget *widgetOf(const PDEOptionControl &control) const;
    toolkit::PopUpControl *menuOf(const PDEOptionControl &control) const;
    bool panelShows(const PDEOptionControl &control) const;
    std::vector<const PDEOptionControl *> leading() const;
    std::vector<Picks> allPicks() const;
    void runOn(const ChosenPaper &paper, const std::vector<Picks> &all);
    bool take(const ChosenPaper &paper, const Picks &picks);
    void pick(const Pick &pick);
    void look(const ChosenPaper &paper);
    bool settles();
    bool lookAt(const PDEOptionControl &control);
    bool lookAtAsked();
    QString choiceAt(const QString &option, int position) const;
    const PDEStatement *constraintOn(const QString &option, const QString &wanted) const;
    void add(const QString &option, const QString &wanted, const QString &message);

    DialogSession &m_session;
    const std::vector<PDEOptionControl> &m_controls;
    const StatementIndex &m_index;
    Findings &m_findings;
    std::clock_t m_end;
    QString m_steps;      // of a person, that led to what is looked at
    OptionValues m_asked; // by a panel in the last save
    QSet<QString> m_told; // once is enough
};

QWidget *PanelRun::widgetOf(const PDEOptionControl &control) const
{
    const PDEPanel *const panel = m_session.panel(control.panel);
    if (!panel || !panel->inspection().isInterfaceLoaded())
        return nullptr;
    const auto all = panel->inspection().controls();
    const auto found = std::ranges::find(all, control.control, &PDEPanelInspection::Control::name);
    return found == all.end() ? nullptr : found->widget;
}

toolkit::PopUpControl *PanelRun::menuOf(const PDEOptionControl &control) const
{
    return qobject_cast<toolkit::PopUpControl *>(widgetOf(control));
}

/// Whether a person who looks at the panel on display sees the control.
bool PanelRun::panelShows(const PDEOptionControl &control) const
{
    PDEPanel *const panel = m_session.panel(control.panel);
    const QWidget *const widget = widgetOf(control);
    const QWidget *const view = panel && panel == m_session.panelOnDisplay() ? panel->panelView() : nullptr;
    return view && widget && view->isAncestorOf(widget) && widget->isVisibleTo(view);
}

std::vector<const PDEOptionControl *> PanelRun::leading() const
{
    std::vector<const PDEOptionControl *> result;
    for (const PDEOptionControl &each : m_controls)
        if (each.leads && m_session.ppd().hasOption(each.option) && menuOf(each))
            result.push_back(&each);
    return result;
}

/// Every item of the first menu with every one of the next, and so on.
std::vector<PanelRun::Picks> PanelRun::allPicks() const
{
    std::vector<Picks> result{{}};
    for (const PDEOptionControl *control : leading()) {
        std::vector<Picks> longer;
        const int items = std::min(menuOf(*control)->count(), kMostItems);
        for (const Picks &picks : result)
            for (int item = 0; item < items; ++item) {
                longer.push_back(picks);
                longer.back().push_back({control, item});
            }
        if (!longer.empty())
            result = std::move(longer);
    }
    return result;
}

void PanelRun::run()
{
    const auto menus = leading();
    PDEPanel *const panel = menus.empty() ? nullptr : m_session.panel(menus.front()->panel);
    if (!panel || !m_session.show(*panel))
        return; // nothing of the kind is shown at all
    const auto papers = m_session.papers();
    const auto all = allPicks();
    for (qsizetype i = 0; i < std::ssize(papers); ++i) {
        if (i == kMostPapers || std::clock() > m_end)
            return m_findings.add(check::kUnchecked, m_index.lineOfOption("PageSize"),
                                  QString("the panels were run through %1 of %2 papers only: conflicts of the others "
                                          "are not checked")
                                      .arg(i)
                                      .arg(papers.size()));
        runOn(m_session.paperNamed(papers[static_cast<std::size_t>(i)].name), all);
    }
    if (const auto limits = m_session.ppd().customSizeLimits())
        runOn({printing::kUserDefinedPaper, limits->largest}, all);
}

void PanelRun::runOn(const ChosenPaper &paper, const std::vector<Picks> &all)
{
    for (const Picks &picks : all) {
        if (std::clock() > m_end)
            return;
        if (take(paper, picks))
            look(paper);
    }
}

/// From the PPD's own defaults, so that the steps are all that it takes. False when a person could not take them.
bool PanelRun::take(const ChosenPaper &paper, const Picks &picks)
{
    m_session.restore({});
    m_session.changePaper(paper);
    m_session.takeRemarks(); // nobody reads them
    m_steps = "with the paper " + nameOf(paper);
    for (const Pick &each : picks) {
        toolkit::PopUpControl *const menu = menuOf(*each.control);
        if (!panelShows(*each.control) || !menu->isEnabled())
            continue; // the panel has it as it has it
        menu->validateItems();
        if (!menu->isItemEnabled(each.item))
            return false;
        pick(each);
    }
    return true;
}

/// What shows already and changes nothing is no step.
void PanelRun::pick(const Pick &pick)
{
    toolkit::PopUpControl *const menu = menuOf(*pick.control);
    const bool isShown = menu->currentIndex() == pick.item;
    const OptionValues before = isShown ? m_session.marks().all() : OptionValues();
    menu->choose(pick.item);
    if (!isShown || before != m_session.marks().all())
        m_steps += QString(", then %1 of %2").arg(choiceAt(pick.control->option, pick.item), pick.control->option);
}

bool PanelRun::settles()
{
    for (int i = 0; i < kMostSaves; ++i) {
        const OptionValues before = m_session.marks().all();
        m_asked.clear();
        m_session.panelOnDisplay()->saveValuesAndReturnError(nullptr);
        if (i > 0 && before == m_session.marks().all())
            return true;
    }
    return false;
}

void PanelRun::look(const ChosenPaper &paper)
{
    if (!settles())
        return add({}, {}, "what is marked is another with each save, and never settles");
    for (const PDEOptionControl &control : m_controls)
        if (panelShows(control) && lookAt(control))
            return;
    if (lookAtAsked())
        return;
    const QString marked = m_session.marks().pageSizeName();
    if (paper.name != printing::kUserDefinedPaper && marked != paper.name)
        add(kPageSize, nameOf(paper), "the page size that is marked is " + marked);
}

/// Whether there was something to find.
bool PanelRun::lookAt(const PDEOptionControl &control)
{
    const auto shown = shownBy(*widgetOf(control));
    const QString marked = m_session.marks().choiceOf(control.option);
    const QString choice = shown ? choiceAt(control.option, *shown) : QString();
    if (marked.isEmpty() || marked == kCustomChoice || choice == marked)
        return false;
    add(control.option, choice,
        QString("the panel shows %1 of %2, and %3 is marked and printed")
            .arg(choice.isEmpty() ? "no choice" : choice, control.option, marked));
    return true;
}

/// The same for what a panel marks and no control shows.
bool PanelRun::lookAtAsked()
{
    for (const auto &[keyword, choice] : m_asked.asKeyValueRange()) {
        const ppd_option_t *const option = m_session.ppd().option(keyword);
        const auto value = option ? m_session.ppd().choice(*option, choice) : std::nullopt;
        const QString marked = m_session.marks().choiceOf(keyword);
        if (!value || value->custom || marked == choice)
            continue;
        add(keyword, choice, QString("the panels mark %1 of %2, and %3 is printed").arg(choice, keyword, marked));
        return true;
    }
    return false;
}

/// Its keyword; empty where there is none at that position.
QString PanelRun::choiceAt(const QString &keyword, int position) const
{
    const ppd_option_t *const option = m_session.ppd().option(keyword);
    return option && position >= 0 && position < option->num_choices
               ? QString::fromUtf8(option->choices[position].choice)
               : QString();
}

/// The constraint that forbids a choice beside what is marked; else one that has the choice, as what it was forbidden
/// by may have moved since; null without any.
const PDEStatement *PanelRun::constraintOn(const QString &option, const QString &wanted) const
{
    const PDEStatement *withChoice = nullptr;
    const OptionValues marked = m_session.marks().all();
    for (const char *keyword : {"UIConstraints", "cupsUIConstraints"})
        for (const PDEStatement *each : m_index.of(keyword)) {
            const auto sides = sidesOf(*each);
            const auto isOn = [&](const Side &side) { return side.option == option && holds(side, wanted); };
            const auto isMarked = [&](const Side &side) { return holds(side, marked.value(side.option)); };
            if (std::ranges::none_of(sides, isOn))
                continue;
            if (std::ranges::all_of(sides, [&](const Side &side) { return isOn(side) || isMarked(side); }))
                return each;
            withChoice = withChoice ? withChoice : each;
        }
    return withChoice;
}

/// One finding an option: what leads there on one paper mostly does so on others.
void PanelRun::add(const QString &option, const QString &wanted, const QString &message)
{
    if (m_told.contains(option))
        return;
    m_told.insert(option);
    const PDEStatement *const constraint = constraintOn(option, wanted);
    const QString see =
        constraint ? QString("; see *%1: %2").arg(QString::fromUtf8(constraint->keyword), quoted(constraint->value))
                   : QString();
    m_findings.add(check::kConflict, constraint ? constraint->line : m_index.lineOfOption(option.toUtf8()),
                   QString("%1: %2%3").arg(m_steps, message, see), option.toUtf8());
}

} // namespace

void runThroughPanels(DialogSession &session, const std::vector<PDEOptionControl> &controls,
                      const StatementIndex &index, Findings &findings)
{
    PanelRun(session, controls, index, findings).run();
}

} // namespace host
