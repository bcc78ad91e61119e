// The root object of the bundle's shared object: where the host comes in.
#include "BasePDEPlugIn.h"
#include "Checks.h"
#include "PerforatedMemo.h"
#include "PrintSettingAdvancedPDE.h"
#include "PrintSettingPDE.h"

#include <QObject>

#include <array>

namespace {

template <class Panel>
std::unique_ptr<PDEPanel> make(PDEPluginCallback_v100_ &callback, const foundation::Bundle &bundle)
{
    auto panel = std::make_unique<Panel>();
    return panel->initWithCallback(callback, bundle) ? std::move(panel) : nullptr;
}

constexpr std::array<PDEPanelMaker, 2> kPanels{make<PrintSettingPDE_v100_>, make<PrintSettingAdvancedPDE_v100_>};

} // namespace

class BundleEntry final : public QObject, public PDEPlugInEntry
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PDEPlugInEntry_iid)
    Q_INTERFACES(PDEPlugInEntry)

public:
    std::unique_ptr<PDEPlugIn> principalObject(const QString &className) override
    {
        if (className != "QNKVPageSettings15PlugIn_v100_")
            return nullptr;
        return std::make_unique<QNKVPageSettings15PlugIn_v100_>(kPanels);
    }
    const PDEChecks *checks() const override { return &bundleChecks(); }
    std::vector<PDERemembered> remembered() const override { return {{perforatedMemo::kKey, perforatedMemo::value()}}; }
};

#include "BundleEntry.moc"
