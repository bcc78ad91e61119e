// Whether a server is the one that it says it is.
#pragma once

#include "Handles.h"

#include <QString>

#include <optional>

namespace host {

/// Why the certificate of an encrypted connection's server is not trusted, in one clause that names the server. Nil
/// when it is: an authority of this system vouches for it, or somebody has put it among those that CUPS knows. Nil as
/// well for a connection that is not encrypted.
std::optional<QString> whyNotTrusted(http_t *http);

} // namespace host
