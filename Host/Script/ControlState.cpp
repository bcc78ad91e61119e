// Controls described.
#include "ControlState.h"

#include "Toolkit/Handles.h"

#include <QJsonArray>

#include <algorithm>
#include <array>

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
        items.append(QJsonObject{{"title", control.titleAt(i)}, {"enabled", control.isItemEnabled(i)}});
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

void addField(QJsonObject &state, const FieldControl &control)
{
    addText(state, control);
    state["editable"] = control.isEditable();
    state["expansionToolTips"] = control.allowsExpansionToolTips();
}

void addCheck(QJsonObject &state, const CheckControl &control)
{
    state["title"] = control.title();
    state["state"] = control.state();
}

void addRadio(QJsonObject &state, const RadioControl &control)
{
    state["rows"] = QJsonArray::fromStringList(control.rows());
    state["selected"] = control.selectedRow();
}

struct Kind
{
    const QMetaObject *type;
    const char *name;
    void (*describe)(QJsonObject &, const QWidget &);
};

template <class C, auto describe>
constexpr Kind kind(const char *name)
{
    return {&C::staticMetaObject, name,
            [](QJsonObject &state, const QWidget &control) { describe(state, static_cast<const C &>(control)); }};
}

constexpr std::array kKinds{
    kind<LabelControl, addText>("label"),  kind<FieldControl, addField>("field"),
    kind<PopUpControl, addPopUp>("popup"), kind<CheckControl, addCheck>("check"),
    kind<RadioControl, addRadio>("radio"), kind<StepperControl, addStepper>("stepper"),
    kind<TabControl, addTabs>("tabs"),
};

/// Adds the members of the control's kind, and the kind.
void addKind(QJsonObject &state, const QWidget &control)
{
    const auto *const found =
        std::ranges::find_if(kKinds, [&](const Kind &kind) { return control.metaObject()->inherits(kind.type); });
    if (found != kKinds.end()) {
        state["kind"] = found->name;
        found->describe(state, control);
    } else if (const QVariant picture = control.property("picture"); picture.isValid()) { // names what it shows
        state["kind"] = "halftone";
        state["picture"] = orNull(picture.toString());
    } else {
        state["kind"] = "view";
    }
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
    addKind(state, control);
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
