// Any bytes as the interface file of both panels: what fits is used, the rest is left out.
#include "Fuzzing.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    fuzzing::beginRun();
    const QString bundle = fuzzing::bundleCopy();
    for (const char *name : {"PrintSettingPDE.ui", "PrintSettingAdvancedPDE.ui"})
        fuzzing::write(bundle + "/Resources/" + name, fuzzing::bytesOf(data, size));
    host::Script script;
    const QJsonObject open{
        {"do", "open"}, {"ppd", QN_EXAMPLES "/ppd/full.ppd"}, {"bundle", bundle}, {"prepare", false}};
    fuzzing::promise(fuzzing::reply(script, open)["ok"].toBool());
    fuzzing::lookAround(script);
    return 0;
}
