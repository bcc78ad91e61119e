// The requests of `qnprint script`.
#include "Script.h"

#include "ControlState.h"
#include "RecordedReplies.h"

#include "Session/Environment.h"

#include "Foundation/UserDefaults.h"
#include "Toolkit/Controls.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <cmath>
#include <iostream>
#include <string>

namespace host {

namespace {

constexpr auto kDefaultURI = "ipp://localhost/printers/qn";
constexpr auto kDefaultSystem = "11.0.0";
constexpr auto kDefaultLocale = "en_US";
constexpr auto kDefaultLanguage = "en";

QJsonObject toObject(const OptionValues &values)
{
    QJsonObject object;
    for (const auto &[key, value] : values.asKeyValueRange())
        object[key] = value;
    return object;
}

QString styleName(toolkit::Alert::Style style)
{
    switch (style) {
    case toolkit::Alert::Style::warning: return "warning";
    case toolkit::Alert::Style::informational: return "informational";
    case toolkit::Alert::Style::critical: return "critical";
    }
    return {};
}

QJsonArray itemsOf(toolkit::PopUpControl &menu) { return controlState(menu)["items"].toArray(); }

/// Width and height of a request, which go together; nil when it gives none.
std::optional<printing::Paper> paperSize(const ScriptRequest &request)
{
    if (!request.has("width") && !request.has("height"))
        return std::nullopt;
    return printing::Paper{request.number("width"), request.number("height")};
}

/// What `open` sets for the whole process.
Environment environment(const ScriptRequest &request)
{
    Environment result;
    if (request.isNull("system")) {
        result.system = std::nullopt;
    } else {
        const QString version = request.stringOr("system", kDefaultSystem);
        result.system = foundation::systemVersionFromString(version);
        if (!result.system)
            throw ScriptRefusal(QString("\"%1\" is not a system version of the form 11.0.0").arg(version));
    }
    const QString name = request.stringOr("locale", kDefaultLocale);
    const auto locale = knownLocale(name);
    if (!locale)
        throw ScriptRefusal(QString("\"%1\" is not a known locale").arg(name));
    result.locale = *locale;
    return result;
}

DialogSession::Parameters parameters(const ScriptRequest &request)
{
    DialogSession::Parameters result;
    result.ppdPath = request.string("ppd");
    const QString uri = request.stringOr("uri", kDefaultURI);
    if (!uri.isEmpty())
        result.uri = uri;
    if (request.has("paper"))
        result.paperName = request.isNull("paper") ? std::nullopt : std::optional(request.string("paper"));
    result.paperSize = paperSize(request);
    if (request.has("defaults"))
        result.defaults = request.strings("defaults");
    if (request.has("bundle"))
        result.bundlePath = request.string("bundle");
    result.localization = request.stringOr("language", kDefaultLanguage);
    result.panelType = request.stringOr("type", result.panelType);
    return result;
}

} // namespace

// `job`, `effect` and `state` only tell what is marked and shown; every other request may run the panels' code.
const std::array<Script::Verb, 22> Script::kVerbs{{
    // clang-format off
    {"open",     &Script::open,     Runs::panels},
    {"show",     &Script::show,     Runs::panels},
    {"hide",     &Script::hide,     Runs::panels},
    {"menu",     &Script::menu,     Runs::panels},
    {"pick",     &Script::pick,     Runs::panels},
    {"click",    &Script::click,    Runs::panels},
    {"row",      &Script::row,      Runs::panels},
    {"type",     &Script::type,     Runs::panels},
    {"enter",    &Script::enter,    Runs::panels},
    {"step",     &Script::step,     Runs::panels},
    {"paper",    &Script::paper,    Runs::panels},
    {"mark",     &Script::mark,     Runs::panels},
    {"keys",     &Script::keys,     Runs::panels},
    {"name",     &Script::name,     Runs::panels},
    {"save",     &Script::save,     Runs::panels},
    {"restore",  &Script::restore,  Runs::panels},
    {"summary",  &Script::summary,  Runs::panels},
    {"print",    &Script::print,    Runs::panels},
    {"job",      &Script::job,      Runs::nothing},
    {"effect",   &Script::effect,   Runs::nothing},
    {"state",    &Script::state,    Runs::nothing},
    {"close",    &Script::close,    Runs::panels},
    // clang-format on
}};

Script::Script()
    : m_presentAlerts([this](const toolkit::Alert &alert) {
        m_alerts.append(QJsonObject{{"message", alert.messageText()},
                                    {"informative", alert.informativeText()},
                                    {"buttons", QJsonArray::fromStringList(alert.buttons())},
                                    {"style", styleName(alert.style())}});
    })
{}

QStringList Script::requests()
{
    QStringList names;
    for (const Verb &verb : kVerbs)
        names.append(verb.name);
    return names;
}

std::optional<QByteArray> Script::reply(const QByteArray &line)
{
    if (line.trimmed().isEmpty() || line.startsWith('#'))
        return std::nullopt;
    QJsonObject reply;
    try {
        reply = perform(line);
        reply["ok"] = true;
    } catch (const ScriptRefusal &refusal) {
        reply = {{"ok", false}, {"error", refusal.sentence()}};
    }
    return QJsonDocument(reply).toJson(QJsonDocument::Compact);
}

QJsonObject Script::perform(const QByteArray &line)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(line, &error);
    const QString name = document.object().value("do").toString();
    const auto *const verb = std::ranges::find_if(kVerbs, [&](const Verb &v) { return name == v.name; });
    m_allLinesKnown = m_allLinesKnown && verb != kVerbs.end();
    if (error.error != QJsonParseError::NoError)
        throw ScriptRefusal(
            QString("not JSON (%1 at character %2)").arg(error.errorString(), QString::number(error.offset)));
    if (!document.isObject())
        throw ScriptRefusal("not a JSON object");
    if (verb == kVerbs.end())
        throw ScriptRefusal(document.object().contains("do") ? QString("unknown request \"%1\"").arg(name)
                                                             : QString("member \"do\" is missing"));
    m_marks = {};
    m_alerts = {};
    QJsonObject reply = (this->*verb->perform)(ScriptRequest(document.object()));
    if (verb->runs == Runs::panels) {
        reply["marks"] = m_marks;
        reply["alerts"] = m_alerts;
    }
    return reply;
}

void Script::requireSession() const
{
    if (!m_session)
        throw ScriptRefusal("no dialog is open");
}

DialogSession &Script::session() const
{
    requireSession();
    return *m_session;
}

PDEPanel &Script::panel(const ScriptRequest &request) const
{
    const QString identifier = request.string("panel");
    PDEPanel *const panel = session().panel(identifier);
    if (!panel)
        throw ScriptRefusal(QString("the dialog has no panel \"%1\"").arg(identifier));
    return *panel;
}

/// The control of a request, of the kind that the request is for, and such that a person could use it.
template <class C>
C &Script::control(const ScriptRequest &request) const
{
    PDEPanel &owner = panel(request);
    const QString name = request.string("control");
    const auto controls = owner.inspection().controls();
    const auto found = std::ranges::find(controls, name, &PDEPanelInspection::Control::name);
    if (found == controls.end())
        throw ScriptRefusal(QString("the panel has no control \"%1\"").arg(name));
    if (&owner != session().panelOnDisplay())
        throw ScriptRefusal(QString("%1: its panel is not on display").arg(name));
    if (const auto reason = reasonNotUsable(name, found->widget, owner.panelView()))
        throw ScriptRefusal(*reason);
    C *const control = qobject_cast<C *>(found->widget);
    if (!control)
        throw ScriptRefusal(QString("%1: not a control of the kind that this request is for").arg(name));
    return *control;
}

QJsonArray Script::panelIdentifiers() const
{
    QJsonArray identifiers;
    for (const auto &panel : m_session->panels())
        identifiers.append(panel->identifier());
    return identifiers;
}

QJsonObject Script::open(const ScriptRequest &request)
{
    const auto wanted = parameters(request);
    const Environment around = environment(request);
    const bool prepare = !request.has("prepare") || request.boolean("prepare");

    auto next = DialogSession::open(wanted);
    if (!next)
        throw ScriptRefusal(next.problem().sentence);
    m_session.reset();
    around.apply();
    m_session = *std::move(next);
    m_session->setListener(
        {.panelMarks = [this](const QString &key, const QString &choice) { m_marks.append(QJsonArray{key, choice}); },
         .changed = {}});
    m_session->start(prepare ? DialogSession::Prepare::everyPanel : DialogSession::Prepare::nothing);

    QJsonObject reply{{"accepted", m_session->isAccepted()}, {"panels", QJsonArray()}};
    if (m_session->isAccepted())
        reply["panels"] = m_session->madePanels() ? QJsonValue(panelIdentifiers()) : QJsonValue();
    return reply;
}

QJsonObject Script::show(const ScriptRequest &request)
{
    if (!session().show(panel(request)))
        throw ScriptRefusal(QString("panel \"%1\" has no interface to show").arg(request.string("panel")));
    return {};
}

QJsonObject Script::hide(const ScriptRequest &)
{
    const auto answer = session().hide();
    if (!answer)
        throw ScriptRefusal("no panel is on display");
    return {{"result", *answer}};
}

QJsonObject Script::menu(const ScriptRequest &request)
{
    auto &menu = control<toolkit::PopUpControl>(request);
    menu.validateItems();
    return {{"items", itemsOf(menu)}};
}

QJsonObject Script::pick(const ScriptRequest &request)
{
    const int index = request.index("index");
    auto &menu = control<toolkit::PopUpControl>(request);
    menu.validateItems();
    const QString name = request.string("control");
    if (index < 0 || index >= menu.count())
        throw ScriptRefusal(QString("%1: the menu has no item %2").arg(name, QString::number(index)));
    if (!menu.isItemEnabled(index))
        throw ScriptRefusal(QString("%1: item %2 is not available").arg(name, QString::number(index)));
    const QJsonArray items = itemsOf(menu);
    menu.choose(index);
    return {{"items", items}};
}

QJsonObject Script::click(const ScriptRequest &request)
{
    control<toolkit::CheckControl>(request).click();
    return {};
}

QJsonObject Script::row(const ScriptRequest &request)
{
    const int row = request.index("row");
    auto &radio = control<toolkit::RadioControl>(request);
    if (row < 0 || row >= radio.rows().size())
        throw ScriptRefusal(QString("%1: there is no row %2").arg(request.string("control"), QString::number(row)));
    radio.choose(row);
    return {};
}

QJsonObject Script::type(const ScriptRequest &request)
{
    const QString text = request.string("text");
    auto &field = control<toolkit::FieldControl>(request);
    if (!field.isEditable())
        throw ScriptRefusal(QString("%1: the field is not editable").arg(request.string("control")));
    field.paste(text);
    return {};
}

QJsonObject Script::enter(const ScriptRequest &request)
{
    auto &field = control<toolkit::FieldControl>(request);
    if (!field.isEditable())
        throw ScriptRefusal(QString("%1: the field is not editable").arg(request.string("control")));
    field.enter();
    return {};
}

QJsonObject Script::step(const ScriptRequest &request)
{
    const int by = request.index("by");
    if (by != 1 && by != -1)
        throw ScriptRefusal("member \"by\" is neither 1 nor -1");
    control<toolkit::StepperControl>(request).step(by);
    return {};
}

QJsonObject Script::paper(const ScriptRequest &request)
{
    const auto name = request.isNull("name") ? std::nullopt : std::optional(request.string("name"));
    session().changePaper(session().paperNamed(name, paperSize(request)));
    return {};
}

QJsonObject Script::mark(const ScriptRequest &request)
{
    return {{"result", session().mark(request.string("key"), request.string("choice"))}};
}

QJsonObject Script::keys(const ScriptRequest &request)
{
    const auto keys = panel(request).supportedPPDOptionKeys();
    return {{"result", keys ? QJsonValue(QJsonArray::fromStringList(*keys)) : QJsonValue()}};
}

QJsonObject Script::name(const ScriptRequest &request)
{
    PDEPanel &asked = panel(request);
    return {{"result", asked.panelName()}, {"kind", asked.panelKind()}};
}

QJsonObject Script::save(const ScriptRequest &request)
{
    return {{"result", panel(request).saveValuesAndReturnError(nullptr)}};
}

QJsonObject Script::restore(const ScriptRequest &request)
{
    return {{"result", panel(request).restoreValuesAndReturnError(nullptr)}};
}

QJsonObject Script::summary(const ScriptRequest &request)
{
    const auto summary = panel(request).summaryInfo();
    if (!summary)
        return {{"result", QJsonValue()}};
    QJsonObject result = toObject(summary->values);
    result[kPDESummaryDisplayOrder] = QJsonArray::fromStringList(summary->displayOrder);
    return {{"result", result}};
}

QJsonObject Script::print(const ScriptRequest &request)
{
    return {{"result", request.has("panel") ? panel(request).shouldPrint() : session().shouldPrint()}};
}

QJsonObject Script::job(const ScriptRequest &) { return {{"options", toObject(session().marks().forJob())}}; }

QJsonObject Script::effect(const ScriptRequest &)
{
    const auto effect = session().printEffect();
    if (!effect)
        return {{"effect", QJsonValue()}};
    constexpr std::array kMethodNames{"binary", "dither", "diffusion"}; // in the order of the methods
    const auto method =
        effect->halftone ? QJsonValue(kMethodNames.at(static_cast<std::size_t>(*effect->halftone))) : QJsonValue();
    return {{"effect", QJsonObject{{"halftone", method},
                                   {"reversed", effect->reversed},
                                   {"mirrored", effect->mirrored},
                                   {"feed", effect->feed ? QJsonValue(*effect->feed) : QJsonValue()},
                                   {"perforated", effect->perforated}}}};
}

QJsonObject Script::close(const ScriptRequest &)
{
    requireSession();
    m_session.reset();
    return {};
}

namespace {

/// Whether every line was a known request.
bool answerLines(RecordedReplies &replies)
{
    // A run must not meet the user's own values, nor another run's.
    const QTemporaryDir directory;
    const foundation::ScopedDefaults defaults(directory.filePath("defaults.ini"));
    Script script;
    for (std::string line; std::getline(std::cin, line);) {
        if (const auto reply = script.reply(QByteArray::fromStdString(line))) {
            std::cout << reply->constData() << '\n' << std::flush; // flushed: somebody waits for it
            replies.add(*reply);
        }
        QCoreApplication::processEvents();
    }
    return script.allLinesKnown();
}

} // namespace

foundation::Or<int> runScript(const ScriptFiles &files)
{
    constexpr int kDifferent = 1;
    constexpr int kUnknownLine = 2;
    auto replies = RecordedReplies::open(files.record, files.expect);
    if (!replies)
        return replies.problem();
    const bool allLinesKnown = answerLines(**replies);
    if (const auto written = (*replies)->write(); !written)
        return written.problem();
    const QByteArray differences = (*replies)->differences();
    std::cerr << differences.constData() << std::flush;
    if (!allLinesKnown)
        return kUnknownLine;
    return differences.isEmpty() ? 0 : kDifferent;
}

} // namespace host
