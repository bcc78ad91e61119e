// A modal message with buttons.
#pragma once

#include <QString>
#include <QStringList>

#include <functional>

namespace toolkit {

class Alert
{
public:
    enum class Style { warning, informational, critical };
    using Presenter = std::function<void(const Alert &)>;

    /// How alerts are shown from now on; an empty function brings message boxes back.
    static void setPresenter(Presenter presenter);

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

} // namespace toolkit
