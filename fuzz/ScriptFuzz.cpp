// Any bytes as lines of a script: one reply a line, whatever the line is.
#include "Fuzzing.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    fuzzing::beginRun();
    host::Script script;
    for (const QByteArray &line : fuzzing::bytesOf(data, size).split('\n')) {
        const bool isRequest = !line.trimmed().isEmpty() && !line.startsWith('#');
        fuzzing::promise(fuzzing::reply(script, line).isEmpty() != isRequest);
    }
    return 0;
}
