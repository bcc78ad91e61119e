// The PPD functions of the PPD library, under one roof: the only place that includes its header, so that a successor
// library can take its place here.
#pragma once

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
#include <cups/cups.h>
#include <cups/ppd.h>
#pragma GCC diagnostic pop

// libcups marks every PPD function as deprecated, without a replacement in its own major version.
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

#include <memory>

namespace printing {

struct PPDCloser
{
    void operator()(ppd_file_t *file) const { ppdClose(file); }
};

/// An open PPD file; its records live as long as it does.
using PPDFile = std::unique_ptr<ppd_file_t, PPDCloser>;

} // namespace printing
