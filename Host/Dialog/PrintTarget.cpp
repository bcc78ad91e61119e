// A printer to set up and to print on. Of the same option, a choice made in the dialog counts for most, then the
// request, then what is saved.
#include "PrintTarget.h"

#include "Cups/CupsSink.h"
#include "Jobs/FolderSink.h"
#include "Jobs/PageRanges.h"

#include <QFileInfo>

#include <algorithm>
#include <array>

namespace host {

using foundation::Or;
using foundation::Problem;

void PrintTarget::setServerOptions(OptionValues options)
{
    m_amount.copies = readCopies(options.take("copies")).value_or(1);
    m_amount.pages = readPageRanges(options.take("page-ranges")).value_or(QString());
    m_serverOptions = std::move(options);
}

void PrintTarget::setAmount(const PrintRequest &request)
{
    m_amount.copies = request.copies.value_or(m_amount.copies);
    if (!request.pages.isEmpty())
        m_amount.pages = request.pages;
}

void PrintTarget::describe(const Queue &queue)
{
    m_isQueue = true;
    m_name = queue.name;
    m_note = queue.note;
    m_takesJobs = queue.takesJobs;
    m_preset = queue.preset;
    if (queue.distrust)
        m_doubts.append(*queue.distrust);
}

QString PrintTarget::fateOf(const QString &title) const
{
    if (!m_isQueue)
        return {};
    const auto whyItWaits = m_sink->whyItWaits();
    return whyItWaits ? tr("%1 waits: %2", "a document, and why").arg(title, *whyItWaits)
                      : tr("%1: sent to %2").arg(title, m_name);
}

// The older words count where the newer one is missing, and of the two oldest the one that is there.
Scaling PrintTarget::scaling() const
{
    const auto isOn = [this](const char *word) {
        return QStringList{"true", "yes", "on"}.contains(m_serverOptions.value(word), Qt::CaseInsensitive);
    };
    if (m_serverOptions.contains(kPrintScaling))
        return scalingNamed(m_serverOptions[kPrintScaling]);
    if (isOn(kFill))
        return Scaling::fill;
    return isOn(m_serverOptions.contains(kFitPlot) ? kFitPlot : kFitToPage) ? Scaling::fit : Scaling::automatic;
}

namespace {

void removeScaling(OptionValues &options)
{
    for (const char *word : kOlderScalings)
        options.remove(word);
    options.remove(kPrintScaling);
}

} // namespace

void PrintTarget::setScaling(Scaling scaling)
{
    removeScaling(m_serverOptions);
    if (scaling != Scaling::automatic)
        m_serverOptions[kPrintScaling] = nameOf(scaling);
}

namespace {

struct LayoutRow
{
    const char *word;
    const char *neutral; // value that changes nothing
};

constexpr std::array kLayout{LayoutRow{"landscape", "false"},  LayoutRow{"mirror", "false"},
                             LayoutRow{"number-up", "1"},      LayoutRow{"outputorder", "normal"},
                             LayoutRow{"page-border", "none"}, LayoutRow{"page-set", "all"},
                             LayoutRow{"position", "center"},  LayoutRow{"orientation-requested", "3"}};

} // namespace

QStringList PrintTarget::unseen() const
{
    const OptionValues job = jobOptions();
    const auto panel = differences();
    QStringList texts;
    for (const LayoutRow &row : kLayout) {
        const QString value = job.value(row.word, row.neutral);
        if (value == row.neutral)
            continue;
        const auto shown = std::ranges::find(panel, offeredKeyword(row.word), &SummaryRow::keyword);
        texts.append(shown == panel.end() ? QString("%1=%2").arg(row.word, value) : shown->title + ": " + shown->value);
    }
    return texts;
}

void PrintTarget::start(std::function<void()> changed)
{
    if (!m_session)
        return;
    m_session->setListener(
        {.panelMarks = {}, .changed = [changed = std::move(changed)](const QString &, const QString &) { changed(); }});
    m_session->start(DialogSession::Prepare::firstPanel);
    m_doubts += m_session->bundleProblems();
}

const PDEPanels &PrintTarget::panels() const
{
    static const PDEPanels kNone;
    return m_session ? m_session->panels() : kNone;
}

void PrintTarget::prepareAll()
{
    if (m_session)
        m_session->prepareAll();
}

std::vector<SummaryRow> PrintTarget::differences() const
{
    return m_session ? m_session->differences() : std::vector<SummaryRow>();
}

QStringList PrintTarget::takeRemarks() { return m_session ? m_session->takeRemarks() : QStringList(); }

std::optional<PDEPrintEffect> PrintTarget::printEffect() const
{
    return m_session ? m_session->printEffect() : std::nullopt;
}

OptionValues PrintTarget::restore(const QString &preset)
{
    OptionValues saved = m_saved->options(preset);
    m_preset = preset;
    if (m_session)
        m_session->restore(forSession(saved));
    setServerOptions(besideSession(saved));
    return saved;
}

Or<void> PrintTarget::save(const QString &preset, std::optional<int> copies)
{
    OptionValues options = besideSession(m_saved->options(preset)); // not ours to drop
    removeScaling(options);                                         // but what the dialog sets itself
    options.remove(kMedia);
    options.insert(m_serverOptions);
    if (m_session)
        options.insert(fromSession(m_session->settings(forSession(m_saved->options()))));
    if (copies)
        options["copies"] = QString::number(*copies);
    auto saved = m_saved->save(preset, options);
    if (saved)
        m_preset = preset;
    return saved;
}

Or<void> PrintTarget::removePreset()
{
    auto removed = m_saved->remove(m_preset);
    if (removed)
        m_preset.clear(); // what is set stays as it is
    return removed;
}

namespace {

/// What is asked for must be had, or the job would be another than the one asked for.
Or<void> checkChoices(const OptionValues &asked, const PPDDocument &ppd, const QString &form)
{
    for (const auto &[keyword, value] : asked.asKeyValueRange()) {
        const OptionValues meant = withMediaAsPageSize({{keyword, value}});
        if (canBeDriverOption(meant.firstKey()) && ppd.hasOption(meant.firstKey()) &&
            !ppd.accepts(meant.firstKey(), meant.first()))
            return Problem{form.arg(keyword, value)};
    }
    return {};
}

/// A preset that is not there would print with the defaults.
Or<void> checkPreset(const Queue &queue)
{
    const QStringList presets = SavedOptions(queue.name).presets();
    if (queue.preset.isEmpty() || presets.contains(queue.preset, Qt::CaseInsensitive))
        return {};
    if (presets.isEmpty())
        return Problem{PPDTarget::tr("%1: no preset “%2”, and no other").arg(queue.name, queue.preset)};
    return Problem{PPDTarget::tr("%1: no preset “%2”; there are: %3")
                       .arg(queue.name, queue.preset, presets.join(PPDTarget::tr(", ")))};
}

} // namespace

namespace {

/// What is there before anybody chooses: saved options, and what whoever asks remembers of the queue.
OptionValues startingWith(const OptionValues &saved, const PrintRequest &request, const QString &queue)
{
    const QString asked = QueueName::fromText(request.queue).queue;
    if (!asked.isEmpty() && asked != queue)
        return saved;
    OptionValues options = request.isSettled ? OptionValues() : saved;
    options.insert(request.remembered);
    return options;
}

} // namespace

void PPDTarget::doubtUnknownOptions(const OptionValues &asked)
{
    QStringList known;
    for (const ppd_option_t *option : m_session->ppd().options())
        known.append(QString::fromLatin1(option->keyword));
    for (const auto &[keyword, value] : asked.asKeyValueRange()) {
        if (known.contains(keyword) || isServerOption(keyword))
            continue;
        const QString similar = similarOption(keyword, known);
        m_doubts.append(
            similar.isEmpty()
                ? tr("-o %1=%2: neither the printer nor the server is known to have this option.").arg(keyword, value)
                : tr("-o %1=%2: neither the printer nor the server is known to have this option. Did you "
                     "mean “%3”?")
                      .arg(keyword, value, similar));
    }
}

Or<void> PPDTarget::openSession(const PrintRequest &request, const OptionValues &carried,
                                DialogSession::Parameters parameters, std::unique_ptr<PPDDocument> ppd)
{
    parameters.localization = request.language;
    parameters.bundles = DialogSession::Bundles::byClaims;
    parameters.defaults = withMediaAsPageSize(startingWith(parameters.defaults, request, m_name));
    parameters.defaults.insert(withMediaAsPageSize(request.options));
    if (!carried.isEmpty())
        parameters.defaults = carried;
    auto session = DialogSession::open(parameters, std::move(ppd));
    if (!session)
        return session.problem();
    m_session = *std::move(session);
    if (auto checked = checkChoices(request.options, m_session->ppd(), tr("-o %1=%2: the printer has no such choice"));
        !checked)
        return checked;
    doubtUnknownOptions(request.options);
    setServerOptions(m_session->ppd().unknownAmong(parameters.defaults));
    setAmount(request);
    return {};
}

Or<std::unique_ptr<PrintTarget>> PPDTarget::ofFile(const PrintRequest &request)
{
    auto ppd = PPDDocument::open(request.ppd);
    if (!ppd)
        return ppd.problem();
    auto target = std::make_unique<PPDTarget>();
    if (const auto opened = target->openSession(request, {}, {}, *std::move(ppd)); !opened)
        return opened.problem();
    target->m_name = target->m_session->ppd().attribute("NickName").value_or(request.ppd);
    if (!QFileInfo(request.output).isDir())
        target->m_doubts.append(tr("--output %1: there is no such folder; it will be made.").arg(request.output));
    target->m_sink = std::make_shared<FolderSink>(request.output);
    return std::unique_ptr<PrintTarget>(std::move(target));
}

Or<std::unique_ptr<PrintTarget>> PPDTarget::ofQueue(const PrintRequest &request, OpenedQueue opened,
                                                    const OptionValues &carried)
{
    const Queue &queue = opened.queue;
    auto target = std::make_unique<PPDTarget>();
    target->describe(queue);
    target->m_saved = SavedOptions(queue.name);
    DialogSession::Parameters parameters;
    parameters.uri = queue.uri;
    parameters.defaults = target->m_saved->options(queue.preset);
    if (const auto session = target->openSession(request, carried, parameters, std::move(opened.ppd)); !session)
        return Problem{queue.name + ": " + session.problem().sentence};
    target->m_sink = std::make_shared<CupsSink>(queue.name, queue.ppd);
    return std::unique_ptr<PrintTarget>(std::move(target));
}

QString PPDTarget::remark() const
{
    return panels().empty()
               ? tr("The plug-in has no settings for this printer. It is printed with the driver's defaults.")
               : QString();
}

OptionValues PPDTarget::besideSession(const OptionValues &options) const
{
    return m_session->ppd().unknownAmong(withMediaAsPageSize(options));
}

std::optional<Sheet> PPDTarget::sheet() const
{
    const ChosenPaper &chosen = m_session->paper();
    if (!chosen.size)
        return std::nullopt;
    const PPDDocument &ppd = m_session->ppd();
    return Sheet{*chosen.size, ppd.printableArea(chosen.name, *chosen.size), ppd.turnsLeft()};
}

Resolution PPDTarget::resolution() const
{
    const QString marked = m_session->marks().choiceOf("Resolution");
    const auto standard = m_session->ppd().attribute("DefaultResolution");
    return resolutionNamed(marked).value_or(resolutionNamed(standard.value_or(QString())).value_or(Resolution{}));
}

std::optional<Preparation> PPDTarget::preparation() const
{
    return Preparation{sheet(), scaling(), m_session->ppd().takesPDF()};
}

OptionValues PPDTarget::jobOptions() const
{
    OptionValues options = PrintTarget::jobOptions();
    options.insert(m_session->marks().forJob());
    return options;
}

Or<void> PlainTarget::openSession(const PrintRequest &request, const OptionValues &options,
                                  std::unique_ptr<PPDDocument> ppd)
{
    for (const auto &[word, text] : request.options.asKeyValueRange())
        if (const OptionValues asked = asOffered({{word, text}});
            ppd->hasOption(asked.firstKey()) && !ppd->accepts(asked.firstKey(), asked.first()))
            return Problem{PPDTarget::tr("-o %1=%2: the printer has no such choice").arg(word, text)};
    DialogSession::Parameters parameters;
    parameters.localization = request.language;
    parameters.bundles = DialogSession::Bundles::general;
    parameters.defaults = asOffered(options);
    auto session = DialogSession::open(parameters, std::move(ppd));
    if (session)
        m_session = *std::move(session);
    else
        m_doubts.append(session.problem().sentence); // a panel is all that is missing
    return {};
}

Or<std::unique_ptr<PrintTarget>> PlainTarget::ofQueue(const PrintRequest &request, OpenedQueue opened,
                                                      const OptionValues &carried)
{
    const Queue &queue = opened.queue;
    auto target = std::make_unique<PlainTarget>();
    target->describe(queue);
    target->m_papers = queue.papers;
    target->m_standardPaper = queue.standardPaper;
    target->m_saved = SavedOptions(queue.name);
    OptionValues options = startingWith(target->m_saved->options(queue.preset), request, queue.name);
    options.insert(request.options);
    if (!carried.isEmpty()) {
        options = carried;
        options.removeIf([](const auto &option) { return !isServerOption(option.key()); }); // of a driver that has gone
    }
    if (opened.ppd)
        if (const auto session = target->openSession(request, options, std::move(opened.ppd)); !session)
            return Problem{queue.name + ": " + session.problem().sentence};
    target->setServerOptions(target->besideSession(options));
    target->setAmount(request);
    target->m_sink = std::make_shared<CupsSink>(queue.name, std::nullopt);
    return std::unique_ptr<PrintTarget>(std::move(target));
}

OptionValues PlainTarget::forSession(const OptionValues &options) const { return asOffered(options); }

OptionValues PlainTarget::besideSession(const OptionValues &options) const
{
    OptionValues others = options;
    others.removeIf(
        [this](const auto &option) { return m_session && m_session->ppd().hasOption(offeredKeyword(option.key())); });
    return others;
}

OptionValues PlainTarget::jobOptions() const
{
    OptionValues options = PrintTarget::jobOptions();
    if (m_session)
        options.insert(asSaid(m_session->marks().all()));
    return options;
}

QString PlainTarget::remark() const { return tr("No driver describes this printer: it has general settings only."); }

ChosenPaper PlainTarget::paper() const
{
    const QString name = m_serverOptions.value(kMedia, m_standardPaper);
    return name.isEmpty() ? ChosenPaper() : ChosenPaper{name, std::nullopt};
}

void PlainTarget::choosePaper(const ChosenPaper &paper)
{
    if (paper.name)
        m_serverOptions[kMedia] = *paper.name;
}

std::optional<Sheet> PlainTarget::sheet() const
{
    const auto entry = std::ranges::find(m_papers, paper().name, &PaperEntry::name);
    if (entry == m_papers.end())
        return std::nullopt;
    return Sheet{entry->size, QRectF(0, 0, entry->size.width, entry->size.height)};
}

Or<std::unique_ptr<PrintTarget>> targetOfQueue(const PrintRequest &request, OpenedQueue opened,
                                               const OptionValues &carried)
{
    if (const auto checked = checkPreset(opened.queue); !checked)
        return checked.problem();
    if (opened.queue.ppd)
        return PPDTarget::ofQueue(request, std::move(opened), carried);
    return PlainTarget::ofQueue(request, std::move(opened), carried);
}

} // namespace host
