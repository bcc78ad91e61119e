// Options of a job by name.
#include "OptionValues.h"

namespace host {

OptionValues withMediaAsPageSize(OptionValues options)
{
    if (const auto media = options.constFind(kMedia); media != options.cend()) {
        const QString name = media->section(',', 0, 0);
        options.remove(kMedia);
        if (!options.contains(kPageSize))
            options.insert(kPageSize, name);
    }
    return options;
}

} // namespace host
