// Any bytes as lines of a script: one reply a line, whatever the line is.
#include "Offscreen.h"
#include "Script/Script.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    useOffscreenApplication();
    host::Script script;
    const QByteArray input(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    for (const QByteArray &line : input.split('\n'))
        script.reply(line);
    return 0;
}
