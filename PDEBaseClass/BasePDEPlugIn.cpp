// The principal class.
#include "BasePDEPlugIn.h"

#include "PerforatedMemo.h"

#include "Foundation/SystemVersion.h"

namespace {

constexpr std::size_t kPanelCapacity = 2;

bool versionTestHasRun = false;
bool versionTestResult = false;

} // namespace

bool QNKVPageSettings15PlugIn_v100_::initWithBundle(const foundation::Bundle &bundle)
{
    if (!runningOnLeopardOrLater())
        return false;
    pluginBundle = &bundle;
    return true;
}

bool QNKVPageSettings15PlugIn_v100_::runningOnLeopardOrLater()
{
    if (versionTestHasRun)
        return versionTestResult;
    // A query that fails leaves its value as it is: a system that does not say its version counts as 10.4.
    std::int32_t major = 10;
    std::int32_t minor = 4;
    std::int32_t bugFix = 0;
    foundation::Gestalt(foundation::gestaltSystemVersionMajor, &major);
    foundation::Gestalt(foundation::gestaltSystemVersionMinor, &minor);
    foundation::Gestalt(foundation::gestaltSystemVersionBugFix, &bugFix);
    versionTestResult = major >= 11 || (major == 10 && minor >= 5);
    versionTestHasRun = true;
    return versionTestResult;
}

const PDEPanels *QNKVPageSettings15PlugIn_v100_::PDEPanelsForType(const QString &type,
                                                                  PDEPluginCallback_v100_ &callback)
{
    perforatedMemo::remove();
    if (pdes)
        mEarlierPanels.push_back(std::move(pdes));
    pdes = std::make_unique<PDEPanels>();
    pdes->reserve(kPanelCapacity);
    if (type != kPDEPrintingOptionsType || !pluginBundle)
        return pdes.get();

    for (const PDEPanelMaker make : mMakers)
        if (auto panel = make(callback, *pluginBundle))
            pdes->push_back(std::move(panel));
    if (pdes->empty())
        pdes.reset();
    return pdes.get();
}
