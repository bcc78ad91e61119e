// `qnprint script`: the dialog driven by lines of JSON, without a display.
#pragma once

#include "ScriptRequest.h"

#include "Session/DialogSession.h"

#include "Toolkit/Alert.h"

#include <array>

namespace host {

class Script
{
public:
    Script();

    /// The reply to one line; nil for a line that gets none. Never fails: what can't be done is said in the reply.
    std::optional<QByteArray> reply(const QByteArray &line);
    /// Whether every line so far was an object with a known `do`.
    bool allLinesKnown() const { return m_allLinesKnown; }
    /// What `do` may be.
    static QStringList requests();

private:
    /// Whether code of panels may run in a request: only then its reply tells of marks and alerts.
    enum class Runs { nothing, panels };
    struct Verb
    {
        const char *name;
        QJsonObject (Script::*perform)(const ScriptRequest &);
        Runs runs;
    };
    static const std::array<Verb, 22> kVerbs;

    QJsonObject open(const ScriptRequest &);
    QJsonObject show(const ScriptRequest &);
    QJsonObject hide(const ScriptRequest &);
    QJsonObject menu(const ScriptRequest &);
    QJsonObject pick(const ScriptRequest &);
    QJsonObject click(const ScriptRequest &);
    QJsonObject row(const ScriptRequest &);
    QJsonObject type(const ScriptRequest &);
    QJsonObject enter(const ScriptRequest &);
    QJsonObject step(const ScriptRequest &);
    QJsonObject paper(const ScriptRequest &);
    QJsonObject mark(const ScriptRequest &);
    QJsonObject keys(const ScriptRequest &);
    QJsonObject name(const ScriptRequest &);
    QJsonObject save(const ScriptRequest &);
    QJsonObject restore(const ScriptRequest &);
    QJsonObject summary(const ScriptRequest &);
    QJsonObject print(const ScriptRequest &);
    QJsonObject job(const ScriptRequest &);
    QJsonObject effect(const ScriptRequest &);
    QJsonObject state(const ScriptRequest &);
    QJsonObject close(const ScriptRequest &);

    QJsonObject perform(const QByteArray &line);
    void requireSession() const;
    DialogSession &session() const;
    PDEPanel &panel(const ScriptRequest &request) const;
    template <class C>
    C &control(const ScriptRequest &request) const;
    QJsonArray panelIdentifiers() const;

    QJsonArray m_marks;  // of the request at work
    QJsonArray m_alerts; // of the request at work
    bool m_allLinesKnown = true;
    toolkit::PresentAlerts m_presentAlerts;
    std::unique_ptr<DialogSession> m_session; // goes first: its end may still mark and alert
};

/// What a run is kept in and compared with; empty: not at all.
struct ScriptFiles
{
    QString record; // receives the replies
    QString expect; // has those that are to come
};

/// Runs a script from standard input to standard output. Exit status 0; 1 when replies are others than expected, which
/// standard error shows; 2 when a line was no known request. A problem when a file can't be read or written.
foundation::Or<int> runScript(const ScriptFiles &files);

} // namespace host
