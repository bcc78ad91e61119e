// What the server says of its queues.
#pragma once

#include "Cups/Queues.h"

namespace host {

foundation::Or<QueueNames> askForNames(std::chrono::milliseconds patience);

/// A problem names the queue.
foundation::Or<Queue> askForQueue(const QueueName &name, std::chrono::milliseconds patience);

} // namespace host
