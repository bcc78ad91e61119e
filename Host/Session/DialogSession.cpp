// The policy of the dialog: who is called when.
#include "DialogSession.h"

#include "Foundation/Bundle.h"
#include "Foundation/NotificationCenter.h"
#include "Foundation/Text.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace host {

namespace {

/// Numbers may be written in more than one way.
bool isSameValue(const QString &one, const QString &other)
{
    constexpr auto kCustom = QStringView(u"Custom.");
    constexpr double kSmallest = 1e-4; // of inches or millimetres
    if (one == other || !one.startsWith(kCustom) || !other.startsWith(kCustom))
        return one == other;
    return std::abs(foundation::doubleValue(QStringView(one).mid(kCustom.size())) -
                    foundation::doubleValue(QStringView(other).mid(kCustom.size()))) < kSmallest;
}

} // namespace

std::unique_ptr<DialogSession> DialogSession::open(const Parameters &parameters, QString *error)
{
    auto ppd = PPDDocument::open(parameters.ppdPath, error);
    if (!ppd)
        return nullptr;
    const auto bundle = parameters.bundlePath ? parameters.bundlePath : findBundle(ppd->attribute("APDialogExtension"));
    if (!bundle) {
        *error = QString("no plug-in bundle in %1").arg(plugInDirectories().join(", "));
        return nullptr;
    }
    auto plugIn = loadBundle(*bundle, parameters.localization, error);
    if (!plugIn)
        return nullptr;
    return std::unique_ptr<DialogSession>(new DialogSession(parameters, std::move(ppd), std::move(*plugIn)));
}

DialogSession::DialogSession(const Parameters &parameters, std::unique_ptr<PPDDocument> ppd, PlugIn plugIn)
    : m_ppd(std::move(ppd))
    , m_plugIn(std::move(plugIn))
    , m_panelType(parameters.panelType)
    , m_language(parameters.localization)
{
    m_ppd->adoptDefaults(parameters.defaults);
    m_printer.setDeviceURI(parameters.uri);
    setPaper(parameters.paperName ? paperNamed(*parameters.paperName, parameters.paperSize) : markedPaper());
    markPageSize();
}

DialogSession::~DialogSession()
{
    m_panels = nullptr; // the panels' last words are reported to nobody
    m_principal.reset();
}

void DialogSession::start(Prepare what)
{
    m_principal = m_plugIn.entry->principalObject(m_plugIn.bundle->info().principalClass);
    m_accepted = m_principal && m_principal->initWithBundle(*m_plugIn.bundle);
    if (!m_accepted)
        return;
    m_panels = m_principal->PDEPanelsForType(m_panelType, *this);
    if (!m_panels)
        return;
    for (const auto &panel : *m_panels) {
        panel->panelName();
        panel->panelKind();
        panel->supportedPPDOptionKeys();
    }
    for (const auto &panel : *m_panels)
        panel->restoreValuesAndReturnError(nullptr);
    if (what == Prepare::firstPanel && !m_panels->empty())
        prepare(*m_panels->front());
    if (what == Prepare::everyPanel)
        prepareAll();
}

void DialogSession::prepareAll()
{
    if (!m_panels)
        return;
    for (const auto &panel : *m_panels)
        if (!hasBeenShown(*panel))
            prepare(*panel);
}

void DialogSession::prepare(PDEPanel &panel)
{
    panel.panelView();
    panel.willShow();
    panel.shouldHide();
    m_shown.push_back(&panel);
}

bool DialogSession::hasBeenShown(const PDEPanel &panel) const { return std::ranges::count(m_shown, &panel) > 0; }

PDEPanel *DialogSession::panel(const QString &identifier) const
{
    if (!m_panels)
        return nullptr;
    const auto found =
        std::ranges::find_if(*m_panels, [&](const auto &panel) { return panel->identifier() == identifier; });
    return found == m_panels->end() ? nullptr : found->get();
}

bool DialogSession::show(PDEPanel &panel)
{
    if (m_onDisplay == &panel)
        return true;
    if (!panel.panelView()) // asked before the other one leaves, so that a refusal changes nothing
        return false;
    hide();
    panel.willShow();
    m_onDisplay = &panel;
    if (!hasBeenShown(panel))
        m_shown.push_back(&panel);
    return true;
}

std::optional<bool> DialogSession::hide()
{
    if (!m_onDisplay)
        return std::nullopt;
    m_onDisplay->saveValuesAndReturnError(nullptr);
    const bool answer = m_onDisplay->shouldHide();
    m_onDisplay = nullptr;
    return answer;
}

ChosenPaper DialogSession::paperNamed(const std::optional<QString> &name, std::optional<printing::Paper> size) const
{
    if (!size && name)
        size = m_ppd->pageSize(*name);
    return {name, size};
}

void DialogSession::setPaper(const ChosenPaper &paper)
{
    m_paper = paper;
    m_settings.setValue(printing::kPaperNameKey, paper.name);
    m_pageFormat.paper = paper.size;
}

void DialogSession::markPageSize()
{
    if (!m_paper.name)
        return;
    if (m_ppd->pageSize(*m_paper.name))
        report(m_ppd->mark("PageSize", *m_paper.name));
    else if (*m_paper.name == kUserDefinedPaper && m_paper.size)
        report(m_ppd->markCustomPageSize(*m_paper.size));
}

void DialogSession::changePaper(const ChosenPaper &paper)
{
    setPaper(paper);
    markPageSize();
    if (m_panels)
        for (const auto &panel : *m_panels)
            if (panel.get() != m_onDisplay && hasBeenShown(*panel))
                panel->restoreValuesAndReturnError(nullptr);
    foundation::NotificationCenter::defaultCenter().post(printing::kPaperDidChangeNotification);
}

ChosenPaper DialogSession::markedPaper() const
{
    if (const auto size = m_ppd->customPageSize())
        return {kUserDefinedPaper, size};
    return paperNamed(m_ppd->pageSizeName());
}

OptionValues DialogSession::settings(const OptionValues &ownDefaults)
{
    if (m_onDisplay)
        m_onDisplay->saveValuesAndReturnError(nullptr);
    OptionValues values = m_ppd->jobOptions();
    const OptionValues marked = m_ppd->marked();
    for (const QString &keyword : ownDefaults.keys())
        if (!values.contains(keyword) && marked.contains(keyword))
            values.insert(keyword, marked.value(keyword));
    return values;
}

void DialogSession::restore(const OptionValues &values)
{
    report(m_ppd->restore(values));
    setPaper(markedPaper());
    if (m_panels)
        for (const auto &panel : *m_panels)
            panel->restoreValuesAndReturnError(nullptr);
    // Also when the paper is the same: the panels' rules bring in line what was saved under another paper, and what
    // they decide is marked now and not only when the job goes out.
    foundation::NotificationCenter::defaultCenter().post(printing::kPaperDidChangeNotification);
    m_restoring = values;
}

bool DialogSession::mark(const QString &key, const QString &choice)
{
    const auto changes = m_ppd->mark(key, choice);
    report(changes);
    return changes.has_value();
}

bool DialogSession::willChangePPDOptionKeyValue(const QString &key, const QString &choice)
{
    if (onPanelMark)
        onPanelMark(key, choice);
    return mark(key, choice);
}

void DialogSession::report(const std::optional<PPDDocument::Changes> &changes)
{
    if (!changes)
        return;
    for (const auto &[key, choice] : *changes) {
        if (m_panels)
            for (const auto &panel : *m_panels)
                panel->PPDOptionKeyValueDidChange(key, choice);
        if (onChange)
            onChange(key, choice);
    }
}

QString DialogSession::optionText(const QString &keyword) const
{
    return m_plugIn.bundle->localizedString(m_ppd->optionText(keyword));
}

/// In the words of the panels where they have some, else in those of the PPD.
QString DialogSession::choiceText(const PPDDocument::Change &choice) const
{
    const QString key = m_ppd->choiceText(choice.keyword, choice.choice);
    const QString text = m_plugIn.bundle->localizedString(key);
    return text == key ? m_ppd->choiceText(choice.keyword, choice.choice, m_language) : text;
}

QString DialogSession::inWords(const PPDDocument::Change &choice) const
{
    return QString("%1 “%2”").arg(optionText(choice.keyword), choiceText(choice));
}

QStringList DialogSession::takeRemarks()
{
    QStringList remarks;
    for (const auto &[from, to, cause] : m_ppd->takeMoves()) {
        if (m_ppd->choiceMarked(from.keyword) == from.choice)
            continue; // it is back where it was
        const QString sentence = tr("%1 instead of “%2”, to go with %3.")
                                     .arg(inWords({from.keyword, m_ppd->choiceMarked(from.keyword)}), choiceText(from),
                                          cause.keyword.isEmpty() ? tr("the other choices") : inWords(cause));
        if (!remarks.contains(sentence))
            remarks.append(sentence);
    }
    const OptionValues wanted = std::exchange(m_restoring, {});
    const OptionValues marked = m_ppd->marked();
    for (const auto &[keyword, value] : wanted.asKeyValueRange())
        if (keyword != "PageSize" && m_ppd->hasOption(keyword) && !isSameValue(marked.value(keyword), value))
            remarks.append((m_ppd->canTake(keyword, value)
                                ? tr("%1 is not as it was saved: the rules for the paper decide it.")
                                : tr("%1 is not as it was saved: the printer has no such choice any more."))
                               .arg(optionText(keyword)));
    return remarks;
}

bool DialogSession::shouldPrint()
{
    if (m_panels)
        for (const auto &panel : *m_panels)
            if (!panel->shouldPrint())
                return false;
    if (m_onDisplay)
        m_onDisplay->saveValuesAndReturnError(nullptr);
    return true;
}

} // namespace host
