// Options of a job by name.
#include "OptionValues.h"

#include "Foundation/Text.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

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

/// Words that filters take for themselves, but that a PPD may take over.
constexpr std::array kWordsOfFilters{"collate", "media-color", "media-size", "media-source", "media-type"};

bool isAmong(const auto &words, const QString &keyword)
{
    return std::ranges::any_of(
        words, [&keyword](const char *word) { return keyword.compare(QLatin1String(word), Qt::CaseInsensitive) == 0; });
}

bool isWord(const QString &text)
{
    const auto isOfWords = [](QChar each) {
        return each > QChar(' ') && each < QChar(0x7f) && !QString("\"'\\={}").contains(each);
    };
    return !text.isEmpty() && std::ranges::all_of(text, isOfWords);
}

} // namespace

bool canBeDriverOption(const QString &keyword) { return isWord(keyword) && !isAmong(kWordsOfServers, keyword); }

bool isServerOption(const QString &keyword)
{
    return isAmong(kWordsOfServers, keyword) || isAmong(kWordsOfFilters, keyword);
}

QString similarOption(const QString &keyword, const QStringList &known)
{
    constexpr qsizetype kLongest = 40; // as PPDs have them
    if (keyword.size() > kLongest)
        return {};
    QStringList words = known;
    for (const char *const word : kWordsOfServers)
        words.append(QString::fromLatin1(word));
    QString nearest;
    qsizetype least = keyword.size() / 3 + 1; // more is another word
    for (const QString &word : words)
        if (const qsizetype letters = foundation::editDistance(keyword.toLower(), word.toLower()); letters < least) {
            nearest = word;
            least = letters;
        }
    return nearest;
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
