// The policy of the dialog: who is called when.
#include "DialogSession.h"

#include "Foundation/Bundle.h"
#include "Foundation/NotificationCenter.h"

#include <algorithm>
#include <utility>

namespace host {

using foundation::NotificationCenter;
using foundation::Or;
using foundation::Problem;

namespace {

const PDEPanels kNoPanels;

int startedSessions = 0;

} // namespace

/// What panels may ask, and what they ask about.
class DialogSession::Callback final : public PDEPluginCallback_v100_
{
public:
    explicit Callback(DialogSession &session)
        : m_session(session)
    {}

    const printing::Session *printSession() const override { return &m_printSession; }
    const printing::Settings *printSettings() const override { return &settings; }
    const printing::PageFormat *pageFormat() const override { return &format; }
    const printing::Printer *PMPrinter() const override { return &printer; }
    ppd_file_t *ppdFile() const override { return m_session.ppd().file(); }
    bool willChangePPDOptionKeyValue(const QString &key, const QString &choice) override
    {
        if (m_session.m_listener.panelMarks)
            m_session.m_listener.panelMarks(key, choice);
        return m_session.mark(key, choice);
    }

    printing::Settings settings;
    printing::PageFormat format;
    printing::Printer printer;

private:
    DialogSession &m_session;
    printing::Session m_printSession;
};

Or<std::unique_ptr<DialogSession>> DialogSession::open(const Parameters &parameters)
{
    auto ppd = PPDDocument::open(parameters.ppdPath);
    if (!ppd)
        return ppd.problem();
    return open(parameters, *std::move(ppd));
}

namespace {

Or<BundleChoice> bundlesFor(const DialogSession::Parameters &parameters, const PPDDocument &ppd)
{
    using Bundles = DialogSession::Bundles;
    const auto extension = ppd.attribute("APDialogExtension");
    if (!parameters.bundlePath && parameters.bundles == Bundles::general)
        return BundleChoice::general();
    if (!parameters.bundlePath && parameters.bundles == Bundles::byClaims)
        return BundleChoice::forPPD(extension);
    const auto path = parameters.bundlePath ? parameters.bundlePath : findBundle(extension);
    if (!path)
        return Problem{DialogSession::tr("no plug-in bundle in %1").arg(plugInDirectories().join(", "))};
    return BundleChoice::only(*path);
}

} // namespace

Or<std::unique_ptr<DialogSession>> DialogSession::open(const Parameters &parameters, std::unique_ptr<PPDDocument> ppd)
{
    auto bundles = bundlesFor(parameters, *ppd);
    if (!bundles)
        return bundles.problem();
    auto plugIn = bundles->next(parameters.localization);
    if (!plugIn && bundles->problems().isEmpty())
        return Problem{tr("no plug-in bundle in %1").arg(plugInDirectories().join(", "))};
    if (!plugIn)
        return Problem{bundles->problems().first()};
    return std::unique_ptr<DialogSession>(
        new DialogSession(parameters, std::move(ppd), *std::move(bundles), *std::move(plugIn)));
}

DialogSession::DialogSession(const Parameters &parameters, std::unique_ptr<PPDDocument> ppd, BundleChoice bundles,
                             PlugIn plugIn)
    : m_ppd(std::move(ppd))
    , m_marks(*m_ppd)
    , m_bundles(std::move(bundles))
    , m_plugIn(std::move(plugIn))
    , m_panelType(parameters.panelType)
    , m_language(parameters.localization)
    , m_callback(std::make_unique<Callback>(*this))
    , m_words(*m_ppd, *m_plugIn.bundle, m_language)
    , m_remarks(*m_ppd, m_marks, m_words)
    , m_panels(&kNoPanels)
{
    m_marks.adoptDefaults(parameters.defaults);
    m_callback->printer.setDeviceURI(parameters.uri);
    setPaper(parameters.paperName ? paperNamed(*parameters.paperName, parameters.paperSize) : markedPaper());
    markPageSize();
}

DialogSession::~DialogSession()
{
    m_panels = &kNoPanels; // the panels' last words are reported to nobody
    if (m_principal)
        --startedSessions;
}

void DialogSession::start(Prepare what)
{
    Q_ASSERT(startedSessions == 0);
    makePanels();
    while (!isServed()) {
        auto next = m_bundles.next(m_language);
        if (!next)
            break;
        dropPanels();
        m_plugIn = *std::move(next);
        m_words.use(*m_plugIn.bundle);
        makePanels();
    }
    for (const auto &panel : *m_panels)
        panel->restoreValuesAndReturnError(nullptr);
    if (what == Prepare::firstPanel && !m_panels->empty())
        prepare(*m_panels->front());
    if (what == Prepare::everyPanel)
        prepareAll();
}

void DialogSession::makePanels()
{
    m_principal = m_plugIn.entry->principalObject(m_plugIn.bundle->info().principalClass);
    if (!m_principal)
        return;
    ++startedSessions;
    m_accepted = m_principal->initWithBundle(*m_plugIn.bundle);
    if (!m_accepted)
        return;
    if (const PDEPanels *made = m_principal->PDEPanelsForType(m_panelType, *m_callback))
        m_panels = made;
    for (const auto &panel : *m_panels) {
        panel->panelName();
        panel->panelKind();
        m_claimed += panel->supportedPPDOptionKeys().value_or(QStringList());
    }
}

void DialogSession::dropPanels()
{
    m_panels = &kNoPanels;
    m_claimed.clear();
    m_accepted = false;
    if (m_principal)
        --startedSessions;
    m_principal.reset();
}

bool DialogSession::isServed() const
{
    return m_bundles.isSettled() ||
           std::ranges::any_of(m_claimed, [this](const QString &keyword) { return m_ppd->hasOption(keyword); });
}

void DialogSession::prepareAll()
{
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

bool DialogSession::madePanels() const { return m_panels != &kNoPanels; }

PDEPanel *DialogSession::panel(const QString &identifier) const
{
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
    m_callback->settings.setValue(printing::kPaperNameKey, paper.name);
    m_callback->format.paper = paper.size;
}

void DialogSession::markPageSize()
{
    if (!m_paper.name)
        return;
    if (m_ppd->pageSize(*m_paper.name))
        report(m_marks.mark(kPageSize, *m_paper.name));
    else if (*m_paper.name == printing::kUserDefinedPaper && m_paper.size)
        report(m_marks.markCustomPageSize(*m_paper.size));
}

bool DialogSession::isBundlesOwnPrinter() const { return !m_bundles.isGeneral() && isServed(); }

/// Those that a panel takes care of; the paper has a place of its own.
OptionValues DialogSession::claimedAmong(OptionValues values) const
{
    values.removeIf([this](const auto &value) { return !m_claimed.contains(value.key()); });
    return values;
}

std::vector<SummaryRow> DialogSession::differences() const
{
    std::vector<SummaryRow> rows;
    const OptionValues values = claimedAmong(m_marks.forJob());
    for (const ppd_option_t *option : m_ppd->options()) {
        const auto value = values.find(QLatin1String(option->keyword));
        if (value == values.end())
            continue;
        const ChoiceValue choice = ChoiceValue::fromText(value.value());
        rows.push_back(
            {m_words.option(value.key()), m_words.choice(value.key(), choice), choice.custom.has_value(), value.key()});
    }
    return rows;
}

void DialogSession::changePaper(const ChosenPaper &paper)
{
    const OptionValues before = m_marks.all();
    putPaper(paper);
    OptionValues moved = claimedAmong(m_marks.all());
    moved.removeIf([&before](const auto &value) { return before.value(value.key()) == value.value(); });
    m_remarks.addPaper(m_words.choice(kPageSize, paper.name.value_or(QString())), moved);
}

void DialogSession::putPaper(const ChosenPaper &paper)
{
    setPaper(paper);
    markPageSize();
    for (const auto &panel : *m_panels)
        if (panel.get() != m_onDisplay && hasBeenShown(*panel))
            panel->restoreValuesAndReturnError(nullptr);
    NotificationCenter::defaultCenter().post(printing::kPaperDidChangeNotification);
}

ChosenPaper DialogSession::markedPaper() const
{
    if (const auto size = m_marks.customPageSize())
        return {printing::kUserDefinedPaper, size};
    return paperNamed(m_marks.pageSizeName());
}

OptionValues DialogSession::settings(const OptionValues &ownDefaults)
{
    if (m_onDisplay)
        m_onDisplay->saveValuesAndReturnError(nullptr);
    OptionValues values = m_marks.forJob();
    const OptionValues marked = m_marks.all();
    for (const QString &keyword : ownDefaults.keys())
        if (!values.contains(keyword) && marked.contains(keyword))
            values.insert(keyword, marked.value(keyword));
    return withoutSecrets(std::move(values), m_ppd->secretOptions());
}

void DialogSession::restore(const OptionValues &values)
{
    report(m_marks.restore(values));
    setPaper(markedPaper());
    for (const auto &panel : *m_panels)
        panel->restoreValuesAndReturnError(nullptr);
    // Also when the paper is the same: the panels' rules bring in line what was saved under another paper, and what
    // they decide is marked now and not only when the job goes out.
    NotificationCenter::defaultCenter().post(printing::kPaperDidChangeNotification);
    m_remarks.expect(values);
}

bool DialogSession::mark(const QString &key, const QString &choice)
{
    const QString before = m_marks.valueOf(key);
    const auto effect = m_marks.mark(key, choice);
    report(effect);
    // Another amount is the same choice to the panels, and another setting to the dialog.
    if (effect && effect->changed.empty() && m_listener.changed && m_marks.valueOf(key) != before)
        m_listener.changed(key, m_marks.choiceOf(key));
    return effect.has_value();
}

void DialogSession::report(const std::optional<PPDMarks::Effect> &effect)
{
    if (!effect)
        return;
    m_remarks.add(effect->moved);
    for (const auto &[key, choice] : effect->changed) {
        for (const auto &panel : *m_panels)
            panel->PPDOptionKeyValueDidChange(key, choice);
        if (m_listener.changed)
            m_listener.changed(key, choice);
    }
}

std::optional<PDEPrintEffect> DialogSession::printEffect() const
{
    for (const auto &panel : panels())
        if (auto effect = panel->printEffect())
            return effect;
    return std::nullopt;
}

QStringList DialogSession::takeRemarks() { return m_remarks.take(); }

bool DialogSession::shouldPrint()
{
    for (const auto &panel : *m_panels)
        if (!panel->shouldPrint())
            return false;
    if (m_onDisplay)
        m_onDisplay->saveValuesAndReturnError(nullptr);
    return true;
}

} // namespace host
