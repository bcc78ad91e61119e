// PPDs of queues, kept on disk between dialogs and fetched again only when the server's have changed.
#pragma once

#include "Cups/Queues.h"

namespace host {

class ServerConnection;

/// The queue's PPD as the server has it now; nil when the queue has none. Only a whole PPD that can be read is answered
/// or kept.
foundation::Or<std::optional<CachedPPD>> fetchPPD(ServerConnection &server, const QString &queue);

/// Whether the server's PPD of a queue is another by now.
foundation::Or<bool> hasPPDChanged(ServerConnection &server, const QString &queue, const CachedPPD &known);

} // namespace host
