// What a document that is locked with a password becomes with it. Opened by qpdf, a program beside us.
#pragma once

#include "Jobs/Document.h"

#include <QCoreApplication>

#include <stop_token>

namespace host {

class UnlockedDocument
{
    Q_DECLARE_TR_FUNCTIONS(host::UnlockedDocument)

public:
    /// Whether there is a program that can open one.
    static bool isPossible();

    /// A PDF under the same title that anybody can read, in a file without a name. The password goes through a pipe,
    /// and nowhere else. A problem of the kind `locked` when it is another one; a problem as well when the document is
    /// damaged, takes too much, or when `stop` has been asked for. Whoever asks waits.
    static foundation::Or<std::shared_ptr<Document>> of(const Document &locked, const QString &password,
                                                        const std::stop_token &stop);
};

} // namespace host
