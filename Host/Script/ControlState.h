// A control of a panel, for a host that works without a screen: what a person would see, and what a person could do.
#pragma once

#include <QJsonObject>
#include <QWidget>

#include <optional>

namespace host {

/// The members that describe a control; of what kind it is decides which.
QJsonObject controlState(QWidget &control);

/// Whether a person could use the control in this view; otherwise one sentence that says why not.
std::optional<QString> reasonNotUsable(const QString &name, QWidget *control, const QWidget *view);

} // namespace host
