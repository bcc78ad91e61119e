// The controls of an option in a row of a form: a menu, a check box or a list, and the field of an amount.
#pragma once

#include "PDEPlugInInterface.h"
#include "ShownGroup.h"

#include "Toolkit/InterfaceFile.h"

class QFormLayout;

class OptionRow
{
public:
    /// Adds the row to a form, whose widgets own the controls. Option and owner are borrowed.
    OptionRow(const ShownOption &option, QFormLayout &form, toolkit::InterfaceOwner &owner, const QString &range);

    const ShownOption &option() const { return *m_option; }
    bool owns(const QWidget *control) const { return control == m_control || control == m_field; }
    bool isField(const QWidget *control) const { return control == m_field; }

    /// Shows a choice, by its keyword; none when the option has no such choice.
    void show(const QString &choice);
    /// What to mark for what the controls show; nil when that is no choice, or an amount out of its range.
    std::optional<QString> shownValue() const;
    /// What to mark when a person has just chosen: an amount is one that can be, whatever is in the field.
    std::optional<QString> chosenValue() const;
    bool showsAmount() const;
    /// Lets a person write an amount at once.
    void beginAmount();

    std::vector<PDEPanelInspection::Control> controls() const;

private:
    QWidget *makeControl(QWidget *parent);
    void addAmount(QFormLayout &form, QWidget *parent, const QString &range);
    int shownIndex() const;

    const ShownOption *m_option;
    toolkit::LabelControl *m_label = nullptr; // a check box has its own text
    QWidget *m_control = nullptr;
    QWidget *m_amount = nullptr; // field and unit; shown while the custom choice is
    toolkit::FieldControl *m_field = nullptr;
    toolkit::LabelControl *m_unit = nullptr;
};
