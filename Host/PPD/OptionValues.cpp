// Options of a job by name.
#include "OptionValues.h"

#include "Foundation/Text.h"
#include "Printing/ServerWords.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace host {

namespace {

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

bool canBeDriverOption(const QString &keyword) { return isWord(keyword) && !printing::isWordOfServers(keyword); }

bool isServerOption(const QString &keyword)
{
    return printing::isWordOfServers(keyword) || isAmong(kWordsOfFilters, keyword);
}

QString similarOption(const QString &keyword, const QStringList &known)
{
    constexpr qsizetype kLongest = 40; // as PPDs have them
    if (keyword.size() > kLongest)
        return {};
    QStringList words = known;
    for (const char *const word : printing::wordsOfServers())
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
