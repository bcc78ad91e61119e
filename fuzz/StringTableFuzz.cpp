// Any bytes as a bundle's string table: texts come from it, or keys stand for them.
#include "Fuzzing.h"

#include "Foundation/Bundle.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString path = fuzzing::bundleCopy();
    fuzzing::write(path + "/Resources/Localizable_xx.qm", fuzzing::bytesOf(data, size));
    const auto bundle = foundation::Bundle::open(path, "xx");
    fuzzing::promise(static_cast<bool>(bundle));
    for (const char *key : {"STEXT_TAB1", "RS_Density", "RS_Media", "RS_Media_Thermal", "RS_FormFeedMode", "a", ""})
        fuzzing::promise(!(*bundle)->localizedString(key, "x").isEmpty());
    return 0;
}
