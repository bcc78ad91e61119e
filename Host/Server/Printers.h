// What the server says of its queues.
#pragma once

#include "Cups/Queues.h"

namespace host {

foundation::Or<Queues> askForQueues(std::chrono::milliseconds patience);

/// A problem names the queue, or is of the kind `noService` or `noChoice`.
foundation::Or<Queue> askForQueue(const QueueName &name, std::chrono::milliseconds patience);

} // namespace host
