// Any text as page ranges: one normal form, which is its own.
#include "Fuzzing.h"

#include "Jobs/PageRanges.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text = QString::fromUtf8(fuzzing::bytesOf(data, size));
    if (const auto pages = host::readPageRanges(text)) {
        fuzzing::promise(pages == host::readPageRanges(*pages));
        fuzzing::promise(pages->isEmpty() == text.trimmed().isEmpty());
        fuzzing::promise(pages->isEmpty() || pages == host::readPageRanges(text + ',' + text));
    }
    const auto copies = host::readCopies(text);
    fuzzing::promise(!copies || (*copies >= 1 && *copies <= host::kMaximumCopies));
    return 0;
}
