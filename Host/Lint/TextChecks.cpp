// Whether people can read the texts of a PPD.
#include "CommonChecks.h"

#include <QRegularExpression>
#include <QSet>
#include <QStringDecoder>

#include <algorithm>
#include <array>
#include <map>

namespace host {

namespace {

constexpr std::array<const char *, 7> kEncodings{"UTF-8",      "ISOLatin1",   "ISOLatin2",  "ISOLatin5",
                                                 "JIS83-RKSJ", "MacStandard", "WindowsANSI"};

bool isUtf8(QByteArrayView bytes)
{
    QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decode(bytes);
    return !decode.hasError();
}

/// Lines of a value may end; nothing else of the kind belongs into a text.
bool hasControls(QByteArrayView bytes)
{
    constexpr char kDelete = 0x7f;
    return std::ranges::any_of(bytes, [](char each) {
        return (each >= 0 && each < ' ' && each != '\t' && each != '\n' && each != '\r') || each == kDelete;
    });
}

/// What is wrong with the bytes of a statement; nil when nothing is.
std::optional<QString> wrongBytes(const PDEStatement &statement, bool isInUtf8)
{
    for (const QByteArrayView part : {statement.text, statement.value}) // the library refuses such keywords
        if (hasControls(part))
            return "holds a control character, which is shown as something else or ends the text";
    // Only texts of choices are read in another encoding: translations are always taken for UTF-8.
    const bool isTranslation = statement.keyword.toByteArray().contains('.');
    for (const QByteArrayView part : {statement.text, statement.value})
        if ((isInUtf8 || isTranslation) && !isUtf8(part))
            return "is not UTF-8: the text is left out, or shown as another";
    return std::nullopt;
}

} // namespace

void findEncoding(const CheckedText &text, Findings &findings)
{
    const PDEStatement *const named = text.index.first("LanguageEncoding");
    const bool isKnown = named && std::ranges::find(kEncodings, named->value) != kEncodings.end();
    if (!named)
        findings.add(check::kEncoding, 1,
                     "*LanguageEncoding is missing: texts outside ASCII are read as those of another language");
    else if (!isKnown)
        findings.add(check::kEncoding, named->line,
                     QString("%1 is no encoding that CUPS knows: texts outside ASCII come out as others")
                         .arg(quoted(named->value)));
    const bool isInUtf8 = !isKnown || named->value == "UTF-8";
    for (const PDEStatement &each : text.index.all())
        if (const auto wrong = wrongBytes(each, isInUtf8))
            findings.add(check::kEncoding, each.line, QString("*%1 %2").arg(quoted(each.keyword).remove('"'), *wrong));
}

namespace {

/// What one language says of one option.
struct Translation
{
    int line = 0; // of the first
    QSet<QByteArrayView> choices;
};

/// "de" of "de.PageSize"; empty where the keyword is none of a translation.
QByteArrayView languageOf(QByteArrayView keyword)
{
    static const QRegularExpression form("^[a-z]{2,3}(_[A-Za-z]{2,4})?$");
    const qsizetype dot = keyword.toByteArray().indexOf('.');
    const QByteArrayView language = dot > 0 ? keyword.first(dot) : QByteArrayView();
    return form.match(QString::fromLatin1(language)).hasMatch() ? language : QByteArrayView();
}

void findMissing(QByteArrayView language, QByteArrayView keyword, const Translation &there, const CheckedText &text,
                 Findings &findings)
{
    QStringList missing;
    for (const PDEStatement *each : text.index.of(keyword))
        if (!each->option.isEmpty() && !there.choices.contains(each->option))
            missing.append(QString::fromUtf8(each->option));
    constexpr qsizetype kMostNames = 5;
    const QString more = missing.size() > kMostNames ? QString(" and %1 more").arg(missing.size() - kMostNames) : "";
    if (!missing.isEmpty())
        findings.add(check::kTranslation, there.line,
                     QString("%1 has no text in the language %2 for %3%4: these stay in the language of the PPD")
                         .arg(QString::fromUtf8(keyword), QString::fromUtf8(language),
                              missing.first(qMin(missing.size(), kMostNames)).join(", "), more),
                     keyword);
}

} // namespace

void findTranslations(const CheckedText &text, Findings &findings)
{
    std::map<std::pair<QByteArray, QByteArray>, Translation> all; // of language and option
    for (const PDEStatement &each : text.index.all()) {
        const QByteArrayView language = languageOf(each.keyword);
        if (language.isEmpty())
            continue;
        const QByteArrayView keyword = each.keyword.sliced(language.size() + 1);
        if (!text.ppd.hasOption(QString::fromUtf8(keyword)))
            continue; // of a title, a parameter or the like
        Translation &there = all[{language.toByteArray(), keyword.toByteArray()}];
        there.line = there.line == 0 ? each.line : there.line;
        if (!each.text.isEmpty())
            there.choices.insert(each.option);
        if (!text.index.first(keyword, each.option))
            findings.add(check::kTranslation, each.line,
                         QString("%1 is no choice of %2: the translation is never shown")
                             .arg(quoted(each.option), QString::fromUtf8(keyword)),
                         keyword);
    }
    for (const auto &[names, there] : all)
        findMissing(names.first, names.second, there, text, findings);
}

} // namespace host
