// How a printer fares, in words.
#include "PrinterState.h"

#include "Foundation/PlainText.h"

#include <algorithm>
#include <array>

namespace host {

namespace {

QString optionOf(const cups_dest_t &destination, const char *name)
{
    return QString::fromUtf8(cupsGetOption(name, destination.num_options, destination.options));
}

struct Reason
{
    const char *keyword; // without "-error", "-warning" or "-report"
    const char *words;
};

/// What a person can do something about.
constexpr std::array kReasons{
    Reason{"media-empty", QT_TRANSLATE_NOOP("host::ServerConnection", "out of paper")},
    Reason{"media-needed", QT_TRANSLATE_NOOP("host::ServerConnection", "out of paper")},
    Reason{"media-low", QT_TRANSLATE_NOOP("host::ServerConnection", "little paper left")},
    Reason{"media-jam", QT_TRANSLATE_NOOP("host::ServerConnection", "paper jam")},
    Reason{"cover-open", QT_TRANSLATE_NOOP("host::ServerConnection", "cover open")},
    Reason{"door-open", QT_TRANSLATE_NOOP("host::ServerConnection", "cover open")},
    Reason{"offline", QT_TRANSLATE_NOOP("host::ServerConnection", "not reachable")},
};

QString wordsOf(const QStringList &keywords)
{
    for (const Reason &reason : kReasons)
        for (const QString &keyword : keywords)
            if (keyword.startsWith(QLatin1String(reason.keyword)))
                return ServerConnection::tr(reason.words);
    return {};
}

/// What whoever stopped it has written; what the server writes when nobody did says no more than that it is stopped.
QString messageOf(const ServerConnection &server, const QString &queue)
{
    constexpr std::array kSaysNothing{"paused", "rejecting jobs"};
    const auto answer = server.attributesOf(queue, "printer-state-message");
    ipp_attribute_t *const attribute =
        answer ? ippFindAttribute(answer->get(), "printer-state-message", IPP_TAG_TEXT) : nullptr;
    const QString said = foundation::plainLine(QString::fromUtf8(ippGetString(attribute, 0, nullptr)));
    const auto isSaid = [&said](const char *words) {
        return said.compare(QLatin1String(words), Qt::CaseInsensitive) == 0;
    };
    return std::ranges::any_of(kSaysNothing, isSaid) ? QString() : said;
}

QString withReason(const QString &state, const QString &reason)
{
    return reason.isEmpty() ? state : ServerConnection::tr("%1 (%2)", "a state and its reason").arg(state, reason);
}

} // namespace

PrinterState::PrinterState(const ServerConnection &server, const cups_dest_t &destination)
    : m_name(QString::fromUtf8(destination.name))
    , m_takesJobs(optionOf(destination, "printer-is-accepting-jobs") != "false")
    , m_isStopped(optionOf(destination, "printer-state") == "5")
{
    if (!m_takesJobs || m_isStopped)
        m_reason = messageOf(server, m_name);
    if (m_reason.isEmpty())
        m_reason = wordsOf(optionOf(destination, "printer-state-reasons").split(','));
}

QString PrinterState::inShort() const
{
    QStringList words{m_reason};
    if (!m_takesJobs)
        words.prepend(ServerConnection::tr("takes no jobs"));
    else if (m_isStopped)
        words.prepend(ServerConnection::tr("stopped"));
    words.removeAll(QString());
    return words.join(": ");
}

std::optional<QString> PrinterState::whyJobsWait() const
{
    if (!m_isStopped)
        return std::nullopt;
    return withReason(ServerConnection::tr("%1 is stopped").arg(m_name), m_reason);
}

QString PrinterState::note() const
{
    if (!m_takesJobs)
        return withReason(ServerConnection::tr("%1: the queue does not take jobs now").arg(m_name), m_reason);
    if (m_isStopped)
        return withReason(ServerConnection::tr("%1: the queue is stopped; jobs wait until it is started").arg(m_name),
                          m_reason);
    return m_reason.isEmpty() ? QString() : QStringLiteral("%1: %2").arg(m_name, m_reason);
}

} // namespace host
