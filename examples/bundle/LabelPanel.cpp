// Nothing is kept but the controls: whatever the panel shows or answers is read from the marks, whoever has made them.
// So a change that the PPD's constraints make, a preset and a person's choice all come out the same.
#include "LabelPanel.h"

#include "Foundation/Bundle.h"
#include "Foundation/Text.h"
#include "Toolkit/Alert.h"

#include <QWidget>

#include <algorithm>

namespace {

constexpr auto kMedia = "LbMedia";
constexpr auto kTearOff = "LbTearOff";
constexpr auto kLabels = "LbLabels";
constexpr auto kContinuous = "Continuous";
constexpr auto kCustom = "Custom";

QString numberText(double number) { return QString::number(number, 'g', 6); }

QString joined(const QString &title, const QString &unit) { return unit.isEmpty() ? title : title + ' ' + unit; }

} // namespace

LabelPanel::LabelPanel(PDEPluginCallback_v100_ &callback, const foundation::Bundle &bundle)
    : m_callback(callback)
    , m_bundle(bundle)
    , m_menus{{{kMedia, "mediaLabel", "mediaMenu", {}, {}},
               {"LbDarkness", "darknessLabel", "darknessMenu", {}, {}},
               {"LbSpeed", "speedLabel", "speedMenu", {}, {}}}}
    , m_amounts{{{kTearOff, "tearOffLabel", "tearOffField", "tearOffStepper", "tearOffUnit", {}, {}, {}, {}},
                 {kLabels, "labelsLabel", "labelsField", "labelsStepper", nullptr, {}, {}, {}, {}}}}
{}

LabelPanel::~LabelPanel() { delete m_view; }

QWidget *LabelPanel::panelView()
{
    if (!m_view)
        m_view = toolkit::loadInterfaceFile(m_bundle, "LabelPanel", *this).release();
    return m_view;
}

QString LabelPanel::panelName() { return m_bundle.localizedString("PANEL_NAME"); }

std::optional<QStringList> LabelPanel::supportedPPDOptionKeys()
{
    QStringList keywords;
    for (const Menu &menu : m_menus)
        keywords.append(menu.keyword);
    for (const Amount &amount : m_amounts)
        keywords.append(amount.keyword);
    return keywords;
}

void LabelPanel::willShow() { refresh(); }

/// No place for a box: what the printer does not take is put back.
bool LabelPanel::saveValuesAndReturnError(QString *)
{
    for (Amount &amount : m_amounts)
        take(amount);
    refresh();
    return true;
}

bool LabelPanel::restoreValuesAndReturnError(QString *)
{
    refresh();
    return true;
}

void LabelPanel::PPDOptionKeyValueDidChange(const std::optional<QString> &, const std::optional<QString> &)
{
    refresh();
}

// What the PPD says

ppd_option_t *LabelPanel::option(const char *keyword) const { return ppdFindOption(m_callback.ppdFile(), keyword); }

std::optional<QString> LabelPanel::marked(const char *keyword) const
{
    const ppd_choice_t *const choice = ppdFindMarkedChoice(m_callback.ppdFile(), keyword);
    return choice ? std::optional(QString::fromUtf8(choice->choice)) : std::nullopt;
}

namespace {

/// The parameter of a custom option; null where the PPD has none.
const ppd_cparam_t *parameter(ppd_file_t *ppd, const char *keyword)
{
    ppd_coption_t *const custom = ppdFindCustomOption(ppd, keyword);
    return custom ? ppdFirstCustomParam(custom) : nullptr;
}

} // namespace

/// A choice of the PPD's own is a number by its keyword, such as "0".
std::optional<double> LabelPanel::number(const Amount &amount) const
{
    const auto choice = marked(amount.keyword);
    if (!choice)
        return std::nullopt;
    const ppd_cparam_t *const custom = parameter(m_callback.ppdFile(), amount.keyword);
    if (*choice != kCustom || !custom)
        return foundation::doubleValue(*choice);
    if (custom->type == PPD_CUSTOM_INT)
        return custom->current.custom_int;
    return static_cast<double>(custom->current.custom_real);
}

std::optional<LabelPanel::Range> LabelPanel::range(const Amount &amount) const
{
    const ppd_cparam_t *const custom = parameter(m_callback.ppdFile(), amount.keyword);
    if (!custom)
        return std::nullopt;
    if (custom->type == PPD_CUSTOM_INT)
        return Range{static_cast<double>(custom->minimum.custom_int), static_cast<double>(custom->maximum.custom_int)};
    return Range{static_cast<double>(custom->minimum.custom_real), static_cast<double>(custom->maximum.custom_real)};
}

/// A text of the PPD, in the bundle's language where the bundle knows it.
QString LabelPanel::text(const char *ppdText) const { return m_bundle.localizedString(QString::fromUtf8(ppdText)); }

// Rules

/// Continuous media is torn where it ends: there is no gap that could be moved to the edge.
bool LabelPanel::usesTearOff() const { return marked(kMedia) != QString(kContinuous); }

std::optional<PDEPrintEffect> LabelPanel::printEffect()
{
    PDEPrintEffect effect;
    const auto offset = number(m_amounts[0]);
    if (usesTearOff() && offset > 0.0)
        effect.feed = offset;
    effect.perforated = usesTearOff(); // labels end where the next one begins
    return effect;
}

std::optional<PDESummary> LabelPanel::summaryInfo()
{
    PDESummary summary;
    const auto add = [&](const char *keyword, const QString &value) {
        summary.displayOrder.append(text(option(keyword)->text));
        summary.values.insert(summary.displayOrder.last(), value);
    };
    for (const Menu &menu : m_menus)
        if (const ppd_choice_t *const choice = ppdFindMarkedChoice(m_callback.ppdFile(), menu.keyword))
            add(menu.keyword, text(choice->text));
    for (const Amount &amount : m_amounts)
        if (const auto value = number(amount))
            add(amount.keyword, joined(numberText(*value), amount.unit.stringValue().value_or(QString())));
    return summary;
}

bool LabelPanel::shouldPrint()
{
    return std::ranges::all_of(m_amounts, [this](Amount &amount) { return takeOrTell(amount); });
}

// The interface file

bool LabelPanel::connectField(const QString &name, QWidget *control)
{
    for (Menu &menu : m_menus) {
        if (name == menu.labelName)
            return menu.label.connect(control);
        if (name == menu.popUpName)
            return menu.popUp.connect(control);
    }
    for (Amount &amount : m_amounts) {
        if (name == amount.labelName)
            return amount.label.connect(control);
        if (name == amount.fieldName)
            return amount.field.connect(control);
        if (name == amount.stepperName)
            return amount.stepper.connect(control);
        if (amount.unitName && name == amount.unitName)
            return amount.unit.connect(control);
    }
    return false;
}

void LabelPanel::awakeFromNib()
{
    for (Menu &menu : m_menus)
        fill(menu);
    for (Amount &amount : m_amounts)
        if (const auto limits = range(amount); limits && amount.stepper) {
            amount.stepper.widget()->setProperty("minimum", limits->least);
            amount.stepper.widget()->setProperty("maximum", limits->most);
        }
}

/// The choices in the PPD's order. An option that the PPD lacks hides its controls.
void LabelPanel::fill(Menu &menu)
{
    const ppd_option_t *const found = option(menu.keyword);
    menu.label.setHidden(!found);
    menu.popUp.setHidden(!found);
    for (int i = 0; found && i < found->num_choices; ++i)
        menu.popUp.insertItemWithTitle(text(found->choices[i].text), i);
}

void LabelPanel::refresh()
{
    if (!m_view)
        return;
    for (Menu &menu : m_menus) {
        const ppd_option_t *const found = option(menu.keyword);
        for (int i = 0; found && i < found->num_choices; ++i)
            if (found->choices[i].marked)
                menu.popUp.selectItemAtIndex(i);
    }
    for (Amount &amount : m_amounts) {
        const auto value = number(amount);
        const bool isUsed = usesTearOff() || amount.keyword != QLatin1String(kTearOff);
        for (toolkit::View *const view :
             {static_cast<toolkit::View *>(&amount.label), static_cast<toolkit::View *>(&amount.field),
              static_cast<toolkit::View *>(&amount.stepper), static_cast<toolkit::View *>(&amount.unit)}) {
            view->setHidden(!value);
            view->setEnabled(isUsed);
        }
        amount.field.setStringValue(value ? numberText(*value) : QString());
        amount.stepper.setDoubleValue(value.value_or(0));
    }
}

bool LabelPanel::validateMenuItem(const toolkit::MenuItem &) { return true; }

void LabelPanel::performAction(const QString &, QWidget *sender)
{
    for (const Menu &menu : m_menus)
        if (menu.popUp.widget() == sender)
            pick(menu);
    for (Amount &amount : m_amounts)
        if (amount.stepper.widget() == sender) {
            amount.field.setStringValue(numberText(amount.stepper.doubleValue()));
            takeOrTell(amount);
        }
}

void LabelPanel::controlTextDidEndEditing(QWidget *field)
{
    for (Amount &amount : m_amounts)
        if (amount.field.widget() == field)
            takeOrTell(amount);
}

void LabelPanel::pick(const Menu &menu)
{
    const ppd_option_t *const found = option(menu.keyword);
    const int index = menu.popUp.indexOfSelectedItem();
    if (found && index >= 0 && index < found->num_choices)
        m_callback.willChangePPDOptionKeyValue(menu.keyword, QString::fromUtf8(found->choices[index].choice));
}

/// Marks the number in the field, pieces as a whole one. False, and the field left as it is, for one that the printer
/// does not take.
bool LabelPanel::take(Amount &amount)
{
    const auto now = number(amount);
    if (!now || !m_view || !amount.field.isEnabled())
        return true;
    const QString typed = amount.field.stringValue().value_or(QString()).trimmed();
    if (!amount.unitName && typed.contains('.'))
        return false;
    if (typed != numberText(*now) && !m_callback.willChangePPDOptionKeyValue(amount.keyword, typed))
        return false;
    refresh();
    return true;
}

/// The same; one that the printer does not take is told, and waits to be mended.
bool LabelPanel::takeOrTell(Amount &amount)
{
    if (take(amount))
        return true;
    tellRange(amount);
    amount.field.becomeFirstResponder();
    return false;
}

void LabelPanel::tellRange(const Amount &amount) const
{
    const auto limits = range(amount);
    toolkit::Alert alert;
    alert.setMessageText(m_bundle.localizedString("OUT_OF_RANGE").arg(text(option(amount.keyword)->text)));
    if (limits)
        alert.setInformativeText(
            m_bundle.localizedString("RANGE").arg(numberText(limits->least), numberText(limits->most)));
    alert.addButtonWithTitle(m_bundle.localizedString("OK"));
    alert.runModal();
}

// What scripts and tests see

std::vector<PDEPanelInspection::Control> LabelPanel::controls() const
{
    std::vector<Control> controls;
    for (const Menu &menu : m_menus) {
        controls.push_back({menu.labelName, menu.label.widget()});
        controls.push_back({menu.popUpName, menu.popUp.widget()});
    }
    for (const Amount &amount : m_amounts) {
        controls.push_back({amount.labelName, amount.label.widget()});
        controls.push_back({amount.fieldName, amount.field.widget()});
        controls.push_back({amount.stepperName, amount.stepper.widget()});
        if (amount.unitName)
            controls.push_back({amount.unitName, amount.unit.widget()});
    }
    return controls;
}

std::vector<PDEPanelInspection::Selection> LabelPanel::selections() const
{
    std::vector<Selection> selections;
    for (const Menu &menu : m_menus)
        selections.push_back({menu.keyword, marked(menu.keyword)});
    for (const Amount &amount : m_amounts)
        selections.push_back({amount.keyword, marked(amount.keyword)});
    return selections;
}
