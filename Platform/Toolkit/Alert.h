// A modal message with buttons.
#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <utility>

namespace toolkit {

class Alert
{
public:
    enum class Style { warning, informational, critical };
    using Presenter = std::function<void(const Alert &)>;

    /// Posted to the default notification centre before an alert shows: whatever repeats by itself stops.
    static constexpr auto kWillOpen = "AlertWillOpen";

    /// How alerts are shown from now on, an empty function being message boxes; answers how they were shown before.
    static Presenter setPresenter(Presenter presenter);

    void setMessageText(const QString &text) { m_message = text; }
    void setInformativeText(const QString &text) { m_informative = text; }
    void addButtonWithTitle(const QString &title) { m_buttons.append(title); }
    void setAlertStyle(Style style) { m_style = style; }

    const QString &messageText() const { return m_message; }
    const QString &informativeText() const { return m_informative; }
    const QStringList &buttons() const { return m_buttons; }
    Style style() const { return m_style; }

    /// Returns when the person has dismissed it.
    void runModal() const;

private:
    QString m_message;
    QString m_informative;
    QStringList m_buttons;
    Style m_style = Style::warning;
};

/// Shows alerts by a function while this lives, then as before.
class PresentAlerts
{
public:
    explicit PresentAlerts(Alert::Presenter presenter)
        : m_earlier(Alert::setPresenter(std::move(presenter)))
    {}
    ~PresentAlerts() { Alert::setPresenter(std::move(m_earlier)); }
    PresentAlerts(const PresentAlerts &) = delete;
    PresentAlerts &operator=(const PresentAlerts &) = delete;

private:
    Alert::Presenter m_earlier;
};

} // namespace toolkit
