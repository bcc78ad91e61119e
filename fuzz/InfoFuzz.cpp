// Any bytes as a bundle's Info.json: the bundle is loaded, or one sentence says why not.
#include "Fuzzing.h"

#include "Session/PlugIn.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString path = fuzzing::bundleCopy();
    fuzzing::write(path + "/Info.json", fuzzing::bytesOf(data, size));
    const auto plugIn = host::PlugIn::load(path, "none");
    if (!plugIn) {
        fuzzing::promise(plugIn.problem().sentence.startsWith(path));
        return 0;
    }
    const auto &info = plugIn->bundle->info();
    fuzzing::promise(info.abiVersion == kPDEInterfaceVersion && !info.executable.isEmpty());
    plugIn->entry->principalObject(info.principalClass);
    return 0;
}
