// The root object of the bundle's shared object, and its principal class.
#include "GroupPDE.h"
#include "PPDTexts.h"

#include <QObject>

namespace {

constexpr auto kPrincipalClass = "GeneralPlugIn";

class GeneralPlugIn final : public PDEPlugIn
{
public:
    bool initWithBundle(const foundation::Bundle &bundle) override
    {
        m_bundle = &bundle;
        return true;
    }

    /// Earlier panels stay when it is asked again.
    const PDEPanels *PDEPanelsForType(const QString &type, PDEPluginCallback_v100_ &callback) override
    {
        const auto &panels = m_panels.emplace_back(std::make_unique<PDEPanels>());
        ppd_file_t *const ppd = callback.ppdFile();
        if (type != kPDEPrintingOptionsType || !ppd || !m_bundle)
            return panels.get();
        for (ShownGroup &group : shownGroups(*ppd, PPDTexts(*ppd, *m_bundle))) {
            auto panel = std::make_unique<GroupPDE>(std::move(group));
            panel->initWithCallback(callback, *m_bundle);
            panels->push_back(std::move(panel));
        }
        return panels.get();
    }

private:
    const foundation::Bundle *m_bundle = nullptr;
    std::vector<std::unique_ptr<PDEPanels>> m_panels;
};

} // namespace

class BundleEntry final : public QObject, public PDEPlugInEntry
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PDEPlugInEntry_iid)
    Q_INTERFACES(PDEPlugInEntry)

public:
    std::unique_ptr<PDEPlugIn> principalObject(const QString &className) override
    {
        return className == kPrincipalClass ? std::make_unique<GeneralPlugIn>() : nullptr;
    }
    std::vector<PDERemembered> remembered() const override { return {}; }
};

#include "BundleEntry.moc"
