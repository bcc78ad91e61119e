// The `state` of `qnprint script`: what panels show and what is marked.
#include "ControlState.h"
#include "Script.h"

namespace host {

namespace {

QJsonValue orNull(const std::optional<QString> &text) { return text ? QJsonValue(*text) : QJsonValue(); }

QJsonObject panelState(const PDEPanelInspection &panel)
{
    QJsonObject selections;
    for (const auto &[name, choice] : panel.selections())
        selections[name] = orNull(choice);
    QJsonObject controls;
    if (panel.isInterfaceLoaded())
        for (const auto &[name, widget] : panel.controls())
            controls[name] = widget ? QJsonValue(controlState(*widget)) : QJsonValue();
    return {{"paperName", orNull(panel.paperName())},
            {"selections", selections},
            {"loaded", panel.isInterfaceLoaded()},
            {"controls", controls}};
}

} // namespace

QJsonObject Script::state(const ScriptRequest &request)
{
    QJsonObject panels;
    const auto add = [&](const PDEPanel &shown) { panels[shown.identifier()] = panelState(shown.inspection()); };
    if (request.has("panel"))
        add(panel(request));
    else
        for (const auto &each : session().panels())
            add(*each);

    QJsonObject marked;
    for (const auto &[key, value] : session().marks().all().asKeyValueRange())
        marked[key] = value;
    QJsonObject remembered;
    for (const auto &[name, value] : session().remembered())
        remembered[name] = orNull(value);
    const PDEPanel *const onDisplay = session().panelOnDisplay();
    return {{"panels", panels},
            {"marked", marked},
            {"defaults", remembered},
            {"display", onDisplay ? QJsonValue(onDisplay->identifier()) : QJsonValue()}};
}

} // namespace host
