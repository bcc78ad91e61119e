// The policy of the dialog: who is called when.
#include "DialogSession.h"

#include "Foundation/Bundle.h"
#include "Foundation/NotificationCenter.h"

#include <algorithm>

namespace host {

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
{
    m_ppd->adoptDefaults(parameters.defaults);
    m_printer.setDeviceURI(parameters.uri);
    setPaper(paperNamed(parameters.paperName.value_or(m_ppd->pageSizeName()), parameters.paperSize));
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
    const auto found = std::ranges::find_if(
        *m_panels, [&](const auto &panel) { return panel->inspection().identifier() == identifier; });
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
