// Where the host comes in: the root object of the code, and the principal object that makes the panel.
#include "LabelChecks.h"
#include "LabelPanel.h"

#include <QObject>

namespace {

class LabelPlugIn final : public PDEPlugIn
{
public:
    bool initWithBundle(const foundation::Bundle &bundle) override
    {
        m_bundle = &bundle;
        return true;
    }
    const PDEPanels *PDEPanelsForType(const QString &type, PDEPluginCallback_v100_ &callback) override
    {
        if (type == kPDEPrintingOptionsType && m_panels.empty())
            m_panels.push_back(std::make_unique<LabelPanel>(callback, *m_bundle));
        return &m_panels;
    }

private:
    const foundation::Bundle *m_bundle = nullptr;
    PDEPanels m_panels;
};

} // namespace

class LabelEntry final : public QObject, public PDEPlugInEntry
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PDEPlugInEntry_iid)
    Q_INTERFACES(PDEPlugInEntry)

public:
    std::unique_ptr<PDEPlugIn> principalObject(const QString &className) override
    {
        return className == "LabelPlugIn" ? std::make_unique<LabelPlugIn>() : nullptr;
    }
    std::vector<PDERemembered> remembered() const override { return {}; }
    const PDEChecks *checks() const override { return &labelChecks(); }
};

#include "LabelPlugIn.moc"
