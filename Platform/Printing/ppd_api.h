// The functions that read and mark PPD files, under one roof: the only place that names the library they come from.
// QN_PPD_LIBRARY of the build says which: libcups, or the library that takes them over where libcups drops them.
#pragma once

#include "cups_api.h"

#if QN_PPD_FROM_LIBPPD

#include <ppd/ppd.h>

// libcups still fetches PPDs from servers, but declares that beside records of its own, which can't be had as well.
extern "C" http_status_t cupsGetPPD3(http_t *http, const char *queue, time_t *modified, char *path, size_t pathSize);

#else

// libcups marks every PPD function as deprecated, without a replacement in its own major version. Only these are
// declared without the mark; what else is deprecated stays told of.
#include <cups/array.h>
#include <cups/file.h>
#include <cups/raster.h>
#pragma push_macro("_CUPS_DEPRECATED_1_6_MSG")
#undef _CUPS_DEPRECATED_1_6_MSG
#define _CUPS_DEPRECATED_1_6_MSG(message) // NOLINT(bugprone-reserved-identifier): the library's own name
#include <cups/ppd.h>
#pragma pop_macro("_CUPS_DEPRECATED_1_6_MSG")

#endif

#include <memory>

namespace printing {

struct PPDCloser
{
    void operator()(ppd_file_t *file) const { ppdClose(file); }
};

/// An open PPD file; its records live as long as it does.
using PPDFile = std::unique_ptr<ppd_file_t, PPDCloser>;

/// The choices that stand against one choice, with what they are marked with.
inline void conflictsOf(ppd_file_t *ppd, const char *option, const char *choice, CupsOptions &conflicts)
{
#if QN_PPD_FROM_LIBPPD
    *conflicts.countToFill() = ppdGetConflicts(ppd, option, choice, conflicts.listToFill());
#else
    *conflicts.countToFill() = cupsGetConflicts(ppd, option, choice, conflicts.listToFill());
#endif
}

/// The choices to mark so that no constraint is broken and `option` keeps its choice; without an option (null), any
/// may go. False when there is no way out.
inline bool resolveConflicts(ppd_file_t *ppd, const char *option, const char *choice, CupsOptions &resolved)
{
#if QN_PPD_FROM_LIBPPD
    return ppdResolveConflicts(ppd, option, choice, resolved.countToFill(), resolved.listToFill());
#else
    return cupsResolveConflicts(ppd, option, choice, resolved.countToFill(), resolved.listToFill());
#endif
}

} // namespace printing
