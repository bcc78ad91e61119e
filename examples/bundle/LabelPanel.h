// The one panel: media, darkness, speed, tear-off offset, labels at a time.
#pragma once

#include "PDEPlugInInterface.h"

#include "Toolkit/InterfaceFile.h"

#include <QPointer>

#include <array>

class LabelPanel final : public PDEPanel, private PDEPanelInspection, private toolkit::InterfaceOwner
{
public:
    /// Both are borrowed, and outlive the panel.
    LabelPanel(PDEPluginCallback_v100_ &callback, const foundation::Bundle &bundle);
    ~LabelPanel() override;

    QString identifier() const override { return "label"; }
    QWidget *panelView() override;
    QString panelName() override;
    QString panelKind() override { return "org.qnprint.examples.label"; }
    std::optional<QStringList> supportedPPDOptionKeys() override;
    void willShow() override;
    bool shouldHide() override { return true; }
    bool saveValuesAndReturnError(QString *error) override;
    bool restoreValuesAndReturnError(QString *error) override;
    std::optional<PDESummary> summaryInfo() override;
    std::optional<PDEPrintEffect> printEffect() override;
    bool shouldPrint() override;
    void printWindowWillClose(bool) override {}
    bool shouldShowHelp() override { return false; }
    void PPDOptionKeyValueDidChange(const std::optional<QString> &key, const std::optional<QString> &choice) override;
    const PDEPanelInspection &inspection() const override { return *this; }

private:
    /// An option whose choices stand in a menu.
    struct Menu
    {
        const char *keyword;
        const char *labelName;
        const char *popUpName;
        toolkit::TextField label;
        toolkit::PopUpButton popUp;
    };
    /// An option whose value is a number, typed or stepped.
    struct Amount
    {
        const char *keyword;
        const char *labelName;
        const char *fieldName;
        const char *stepperName;
        const char *unitName; // null for a number of pieces
        toolkit::TextField label;
        toolkit::TextField field;
        toolkit::Stepper stepper;
        toolkit::TextField unit;
    };
    struct Range
    {
        double least;
        double most;
    };

    // The interface file.
    bool connectField(const QString &name, QWidget *control) override;
    void awakeFromNib() override;
    void performAction(const QString &name, QWidget *sender) override;
    bool validateMenuItem(const toolkit::MenuItem &item) override;
    void controlTextDidChange(QWidget *) override {}
    void controlTextDidEndEditing(QWidget *field) override;

    // What scripts and tests see.
    bool isInterfaceLoaded() const override { return m_view; }
    std::vector<Control> controls() const override;
    std::vector<Selection> selections() const override;
    std::optional<QString> paperName() const override { return std::nullopt; }

    // What the PPD says. Nil where it lacks the option.
    ppd_option_t *option(const char *keyword) const;
    std::optional<QString> marked(const char *keyword) const;
    std::optional<double> number(const Amount &amount) const;
    std::optional<Range> range(const Amount &amount) const;
    QString text(const char *ppdText) const;

    bool usesTearOff() const;
    void fill(Menu &menu);
    void refresh();
    void pick(const Menu &menu);
    bool take(Amount &amount);
    bool takeOrTell(Amount &amount);
    void tellRange(const Amount &amount) const;

    PDEPluginCallback_v100_ &m_callback;
    const foundation::Bundle &m_bundle;
    QPointer<QWidget> m_view; // the panel's, unless whoever shows it ends it first
    std::array<Menu, 3> m_menus;
    std::array<Amount, 2> m_amounts;
};
