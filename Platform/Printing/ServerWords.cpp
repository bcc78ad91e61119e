// What servers and filters take for themselves.
#include "ServerWords.h"

#include <algorithm>
#include <array>

namespace printing {

namespace {

constexpr std::array kWordsOfServers{"attributes-charset",
                                     "attributes-natural-language",
                                     "auth-info",
                                     "brightness",
                                     "columns",
                                     "compression",
                                     "copies",
                                     "cpi",
                                     "device-uri",
                                     "document-charset",
                                     "document-format",
                                     "document-name",
                                     "document-natural-language",
                                     "document-number",
                                     "document-password",
                                     "finishing-template",
                                     "finishings",
                                     "finishings-col",
                                     "fit-to-page",
                                     "fitplot",
                                     "gamma",
                                     "hue",
                                     "imposition-template",
                                     "ipp-attribute-fidelity",
                                     "job-account-id",
                                     "job-account-type",
                                     "job-accounting-sheets",
                                     "job-accounting-user-id",
                                     "job-authorization-uri",
                                     "job-billing",
                                     "job-cancel-after",
                                     "job-copies",
                                     "job-delay-output-until",
                                     "job-error-action",
                                     "job-hold-until",
                                     "job-hold-until-time",
                                     "job-id",
                                     "job-impressions",
                                     "job-k-octets",
                                     "job-media-sheets",
                                     "job-name",
                                     "job-originating-host-name",
                                     "job-originating-user-name",
                                     "job-pages-per-set",
                                     "job-password",
                                     "job-password-encryption",
                                     "job-phone-number",
                                     "job-printer-uri",
                                     "job-priority",
                                     "job-recipient-name",
                                     "job-retain-until",
                                     "job-save-disposition",
                                     "job-sheet-message",
                                     "job-sheets",
                                     "job-state",
                                     "job-uri",
                                     "job-uuid",
                                     "landscape",
                                     "last-document",
                                     "lpi",
                                     "media",
                                     "media-col",
                                     "mirror",
                                     "multiple-document-handling",
                                     "natural-scaling",
                                     "number-up",
                                     "number-up-layout",
                                     "orientation-requested",
                                     "output-bin",
                                     "output-format",
                                     "outputorder",
                                     "overrides",
                                     "page-border",
                                     "page-bottom",
                                     "page-delivery",
                                     "page-left",
                                     "page-ranges",
                                     "page-right",
                                     "page-set",
                                     "page-top",
                                     "penwidth",
                                     "position",
                                     "ppi",
                                     "prettyprint",
                                     "print-as-raster",
                                     "print-color-mode",
                                     "print-content-optimize",
                                     "print-quality",
                                     "print-rendering-intent",
                                     "print-scaling",
                                     "printer-resolution",
                                     "printer-uri",
                                     "raw",
                                     "requested-attributes",
                                     "requesting-user-name",
                                     "resolution",
                                     "saturation",
                                     "scaling",
                                     "sides",
                                     "time-at-creation",
                                     "wrap"};

/// Of nearly every PPD; servers take the word in small letters only.
constexpr auto kResolution = "Resolution";

} // namespace

std::span<const char *const> wordsOfServers() { return kWordsOfServers; }

bool isWordOfServers(const QString &keyword)
{
    const auto is = [&keyword](const char *word) {
        return keyword.compare(QLatin1String(word), Qt::CaseInsensitive) == 0;
    };
    return keyword != kResolution && std::ranges::any_of(kWordsOfServers, is);
}

} // namespace printing
