// A panel of the options in a group of a PPD.
#pragma once

#include "BasePDE.h"
#include "OptionRow.h"

class QFormLayout;

class GroupPDE final : public BasePDE_v100_
{
public:
    explicit GroupPDE(ShownGroup group)
        : m_group(std::move(group))
    {}

    QString identifier() const override { return m_group.name; }
    QWidget *panelView() override;
    QString panelName() override { return m_group.title; }
    QString panelKind() override;
    std::optional<QStringList> supportedPPDOptionKeys() override;
    std::optional<PDESummary> summaryInfo() override;
    bool shouldPrint() override;
    void PPDOptionKeyValueDidChange(const std::optional<QString> &key, const std::optional<QString> &choice) override;

private:
    void setPDEItems() override;
    void performAction(const QString &name, QWidget *sender) override;
    void controlTextDidChange(QWidget *field) override;
    std::vector<Control> controls() const override;
    std::vector<Selection> selections() const override;

    QWidget *makeView();
    void addHeading(const QString &text, QFormLayout &form);
    QString valueText(const ShownOption &option) const;
    OptionRow *rowOf(const QWidget *control);
    QString marked(const QString &keyword) const;
    void mark(const OptionRow &row, const std::optional<QString> &value);
    void refresh(OptionRow &row) const;

    ShownGroup m_group;
    std::vector<OptionRow> m_rows; // once there is a view
};
