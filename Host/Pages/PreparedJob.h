// A job as it is sent: its document checked, laid out, and put on sheets where nobody else does that.
#pragma once

#include "Placement.h"

#include "Jobs/Job.h"

namespace host {

/// What a printer with a driver makes of documents.
struct Preparation
{
    std::optional<Sheet> sheet; // nil when the size of the paper is not known
    Scaling scaling = Scaling::automatic;
    bool isLeftToUs = false; // the driver gets a PDF as it comes, so nobody else scales it and picks pages
};

/// The job as it is to be sent. A problem when its document is damaged or locked or has no such pages, and when `stop`
/// has been asked for. Without a program that reads PDF, the document is not checked. Whoever asks waits.
foundation::Or<Job> preparedJob(Job job, const Preparation &how, const std::stop_token &stop);

} // namespace host
