// The controls of an option in a row of a form: a menu, a check box or a list, and the field of a custom value.
#pragma once

#include "PDEPlugInInterface.h"
#include "ShownGroup.h"

#include "Toolkit/InterfaceFile.h"

class QFormLayout;

class OptionRow
{
public:
    /// Adds the row to a form, whose widgets own the controls. Option and owner are borrowed.
    OptionRow(const ShownOption &option, QFormLayout &form, toolkit::InterfaceOwner &owner);

    const ShownOption &option() const { return *m_option; }
    bool owns(const QWidget *control) const { return control == m_control || control == m_field; }
    bool isField(const QWidget *control) const { return control == m_field; }

    /// Shows a choice, by its keyword; none when the option has no such choice.
    void show(const QString &choice);
    /// What to mark for what the controls show; nil when that is no choice, or a custom value out of its limits.
    std::optional<QString> shownValue() const;
    /// What to mark when a person has just chosen: a custom value is one that can be, whatever is in the field; where
    /// there is none yet, the custom choice itself.
    std::optional<QString> chosenValue() const;
    bool showsEntry() const;
    /// Lets a person write a custom value at once.
    void beginEntry();

    std::vector<PDEPanelInspection::Control> controls() const;

private:
    QWidget *makeControl(QWidget *parent);
    void addEntry(QFormLayout &form, QWidget *parent);
    int shownIndex() const;

    const ShownOption *m_option;
    toolkit::LabelControl *m_label = nullptr; // a check box has its own text
    QWidget *m_control = nullptr;
    QWidget *m_entry = nullptr; // field and hint; shown while the custom choice is
    toolkit::FieldControl *m_field = nullptr;
    toolkit::LabelControl *m_hint = nullptr;
};
