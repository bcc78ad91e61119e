// Pages of a PDF on sheets, as a PDF: for drivers that take one as it comes.
#pragma once

#include "Placement.h"

#include "Jobs/Document.h"

#include <QCoreApplication>

#include <stop_token>

namespace host {

class ArrangedPages
{
    Q_DECLARE_TR_FUNCTIONS(host::ArrangedPages)

public:
    /// A PDF under the same title of those pages that `ranges`, as `readPageRanges` gives them, mean, each on a sheet
    /// of its own. It is in a file without a name. A problem when the document can't be read, takes too much, or when
    /// `stop` has been asked for.
    static foundation::Or<std::shared_ptr<Document>> of(const Document &document, const Sheet &sheet, Scaling scaling,
                                                        const QString &ranges, const std::stop_token &stop);

private:
    static foundation::Problem problemOf(const QString &title, std::optional<int> status);
};

} // namespace host
