// Alerts over message boxes.
#include "Alert.h"

#include "Foundation/NotificationCenter.h"

#include <QApplication>
#include <QMessageBox>

namespace toolkit {

namespace {

Alert::Presenter &presenter()
{
    static Alert::Presenter function;
    return function;
}

QMessageBox::Icon icon(Alert::Style style)
{
    switch (style) {
    case Alert::Style::warning: return QMessageBox::Warning;
    case Alert::Style::informational: return QMessageBox::Information;
    case Alert::Style::critical: return QMessageBox::Critical;
    }
    return QMessageBox::NoIcon;
}

void showMessageBox(const Alert &alert)
{
    QMessageBox box(QApplication::activeWindow());
    box.setIcon(icon(alert.style()));
    box.setTextFormat(Qt::PlainText);
    box.setText(alert.messageText());
    box.setInformativeText(alert.informativeText());
    for (const QString &title : alert.buttons())
        box.addButton(title, QMessageBox::AcceptRole);
    box.exec();
}

} // namespace

Alert::Presenter Alert::setPresenter(Presenter function) { return std::exchange(presenter(), std::move(function)); }

void Alert::runModal() const
{
    foundation::NotificationCenter::defaultCenter().post(kWillOpen);
    if (const Presenter present = presenter()) // a copy: the function may set another
        present(*this);
    else
        showMessageBox(*this);
}

} // namespace toolkit
