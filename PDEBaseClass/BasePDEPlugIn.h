// The principal class: what the host instantiates, and what makes the panels.
#pragma once

#include "PDEPlugInInterface.h"

#include <span>

/// Makes and initialises one panel; null leaves it out.
using PDEPanelMaker = std::unique_ptr<PDEPanel> (*)(PDEPluginCallback_v100_ &callback,
                                                    const foundation::Bundle &bundle);

class QNKVPageSettings15PlugIn_v100_ final : public PDEPlugIn
{
public:
    /// The makers stand in the order of the panels; the panels themselves live a floor above.
    explicit QNKVPageSettings15PlugIn_v100_(std::span<const PDEPanelMaker> makers)
        : mMakers(makers)
    {}

    bool initWithBundle(const foundation::Bundle &bundle) override;
    const PDEPanels *PDEPanelsForType(const QString &type, PDEPluginCallback_v100_ &callback) override;

    /// Whether the system is 10.5 or later. Asked once per process: later changes of the answer are not seen.
    static bool runningOnLeopardOrLater();

private:
    std::span<const PDEPanelMaker> mMakers;
    const foundation::Bundle *pluginBundle = nullptr;
    std::unique_ptr<PDEPanels> pdes;
    std::vector<std::unique_ptr<PDEPanels>> mEarlierPanels; // a second call does not end the panels of the first
};
