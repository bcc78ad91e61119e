// What the library hands out and wants back.
#pragma once

#include "Printing/cups_api.h"

#include <memory>

namespace host {

template <auto give>
struct GiveBack
{
    void operator()(auto *handle) const { give(handle); }
};

inline void freeOneDestination(cups_dest_t *destination) { cupsFreeDests(1, destination); }

using HttpConnection = std::unique_ptr<http_t, GiveBack<httpClose>>;
using Response = std::unique_ptr<ipp_t, GiveBack<ippDelete>>;
using Destination = std::unique_ptr<cups_dest_t, GiveBack<freeOneDestination>>;
using DestinationInfo = std::unique_ptr<cups_dinfo_t, GiveBack<cupsFreeDestInfo>>;

} // namespace host
