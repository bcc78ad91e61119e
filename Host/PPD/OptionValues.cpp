// Options of a job by name.
#include "OptionValues.h"

#include <algorithm>
#include <array>

namespace host {

namespace {

/// Attributes of jobs, documents and requests, and words that the filters of the printing system take for themselves.
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

bool isWord(const QString &text)
{
    const auto isOfWords = [](QChar each) {
        return each > QChar(' ') && each < QChar(0x7f) && !QString("\"'\\={}").contains(each);
    };
    return !text.isEmpty() && std::ranges::all_of(text, isOfWords);
}

} // namespace

bool canBeDriverOption(const QString &keyword)
{
    const auto isSame = [&keyword](const char *word) {
        return keyword.compare(QLatin1String(word), Qt::CaseInsensitive) == 0;
    };
    return isWord(keyword) && std::ranges::none_of(kWordsOfServers, isSame);
}

OptionValues withMediaAsPageSize(OptionValues options)
{
    if (const auto media = options.constFind(kMedia); media != options.cend()) {
        const QString name = media->section(',', 0, 0);
        options.remove(kMedia);
        if (!options.contains(kPageSize))
            options.insert(kPageSize, name);
    }
    return options;
}

} // namespace host
