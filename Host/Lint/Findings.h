// What was found in one PPD.
#pragma once

#include "PDECheckInterface.h"

namespace host {

/// Bytes of a PPD within a sentence: one line, and not all of it where it is long.
QString quoted(QByteArrayView bytes);

class Findings
{
public:
    void add(const char *check, int line, const QString &message, QByteArrayView option = {});
    void add(PDEFinding finding);
    /// By line; those of one line as they were found.
    std::vector<PDEFinding> sorted() &&;

private:
    std::vector<PDEFinding> m_all;
};

} // namespace host
