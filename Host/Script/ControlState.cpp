// Controls described.
#include "ControlState.h"

#include "Toolkit/Handles.h"

#include <QJsonArray>

using namespace toolkit;

namespace host {

namespace {

QJsonValue orNull(const QString &text) { return text.isEmpty() ? QJsonValue() : QJsonValue(text); }

void addText(QJsonObject &state, const TextControl &control)
{
    state["text"] = control.stringValue();
    state["color"] = control.textColor() == TextColor::control ? "control" : "disabled";
}

void addPopUp(QJsonObject &state, const PopUpControl &control)
{
    QJsonArray items;
    for (int i = 0; i < control.count(); ++i)
        items.append(QJsonObject{{"title", control.itemText(i)}, {"enabled", control.isItemEnabled(i)}});
    state["items"] = items;
    state["selected"] = control.currentIndex();
}

void addTabs(QJsonObject &state, const TabControl &control)
{
    QJsonArray tabs;
    for (const QString &identifier : control.identifiers())
        tabs.append(QJsonObject{{"id", identifier}, {"label", control.label(identifier)}});
    state["tabs"] = tabs;
    state["current"] = control.current();
}

void addStepper(QJsonObject &state, const StepperControl &control)
{
    state["value"] = control.value();
    state["minimum"] = control.minimum();
    state["maximum"] = control.maximum();
    state["increment"] = control.increment();
}

/// Adds the members of the control's kind and answers the kind.
QString addKind(QJsonObject &state, QWidget &control)
{
    if (const auto *label = qobject_cast<LabelControl *>(&control)) {
        addText(state, *label);
        return "label";
    }
    if (const auto *field = qobject_cast<FieldControl *>(&control)) {
        addText(state, *field);
        state["editable"] = field->isEditable();
        state["expansionToolTips"] = field->allowsExpansionToolTips();
        return "field";
    }
    if (const auto *popUp = qobject_cast<PopUpControl *>(&control)) {
        addPopUp(state, *popUp);
        return "popup";
    }
    if (const auto *check = qobject_cast<CheckControl *>(&control)) {
        state["title"] = check->title();
        state["state"] = check->state();
        return "check";
    }
    if (const auto *radio = qobject_cast<RadioControl *>(&control)) {
        state["rows"] = QJsonArray::fromStringList(radio->rows());
        state["selected"] = radio->selectedRow();
        return "radio";
    }
    if (const auto *stepper = qobject_cast<StepperControl *>(&control)) {
        addStepper(state, *stepper);
        return "stepper";
    }
    if (const auto *tabs = qobject_cast<TabControl *>(&control)) {
        addTabs(state, *tabs);
        return "tabs";
    }
    if (const QVariant picture = control.property("picture"); picture.isValid()) { // a preview names what it shows
        state["picture"] = orNull(picture.toString());
        return "halftone";
    }
    return "view";
}

} // namespace

QJsonObject controlState(QWidget &control)
{
    const View view(&control);
    const QPointF origin = view.frameOrigin();
    QJsonObject state{{"hidden", view.isHidden()},
                      {"enabled", view.isEnabled()},
                      {"attached", view.isAttached()},
                      {"origin", QJsonArray{origin.x(), origin.y()}}};
    state["kind"] = addKind(state, control);
    return state;
}

std::optional<QString> reasonNotUsable(const QString &name, QWidget *control, const QWidget *view)
{
    const auto sentence = [&](const char *reason) { return std::optional(QString("%1: %2").arg(name, reason)); };
    if (!control)
        return sentence("the interface has no such control");
    const View handle(control);
    if (!handle.isAttached())
        return sentence("the control has been removed");
    if (handle.isHidden())
        return sentence("the control is hidden");
    if (!view || !control->isVisibleTo(view))
        return sentence("the control is on a page that is not shown");
    if (!control->isEnabledTo(view))
        return sentence("the control is disabled");
    return std::nullopt;
}

} // namespace host
