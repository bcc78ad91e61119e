// Any bytes as a PPD that a dialog opens on: every panel shows what there is, or one sentence says why not.
#include "Fuzzing.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    fuzzing::beginRun();
    const QString path = fuzzing::pathOf("any.ppd");
    fuzzing::write(path, fuzzing::bytesOf(data, size));
    host::Script script;
    const QJsonObject opened = fuzzing::reply(script, {{"do", "open"}, {"ppd", path}, {"prepare", false}});
    if (opened["ok"].toBool()) {
        fuzzing::lookAround(script);
        return 0;
    }
    const QString sentence = opened["error"].toString();
    fuzzing::promise(sentence.startsWith(path) && !sentence.contains('\n'));
    return 0;
}
