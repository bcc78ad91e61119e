#include "ApplicationSettings.h"

#include "Foundation/PlainText.h"
#include "Jobs/PageRanges.h"
#include "PPD/CustomValue.h"

#include <array>
#include <limits>

namespace host {

namespace {

constexpr qsizetype kMostSettings = 1000;
constexpr qsizetype kLongestKey = 256;
constexpr qsizetype kLongestValue = 4096;

constexpr QLatin1String kDriverOption("cups-"); // in front of an option of the driver

constexpr auto kCopies = "n-copies";
constexpr auto kPrinter = "printer";
constexpr auto kPrintPages = "print-pages";
constexpr auto kPageRanges = "page-ranges";
constexpr auto kOrientation = "orientation";

/// What would have the application do a part of the job that is done here, or not do its own.
struct SettingRow
{
    const char *key;
    const char *value; // null: it is left out
};
constexpr std::array kSettingRows{
    SettingRow{"paper-format", nullptr}, // would count for more than the page set-up, and an unknown name is A4
    SettingRow{"paper-width", nullptr},
    SettingRow{"paper-height", nullptr},
    SettingRow{kOrientation, nullptr},
    SettingRow{kPageRanges, nullptr},
    SettingRow{"output-uri", nullptr}, // the file of the last job
    SettingRow{"output-basename", nullptr},
    SettingRow{"output-file-format", nullptr},
    SettingRow{kCopies, "1"},
    SettingRow{kPrintPages, "all"},
    SettingRow{"page-set", "all"},
    SettingRow{"reverse", "false"},
    SettingRow{"collate", "false"},
    SettingRow{"number-up", "1"},
    SettingRow{"scale", "100"},
};

/// "0-2,4", counted from 0, as a person writes it: "1-3,5". Empty when it can't be read.
QString pagesFromRanges(const QString &ranges)
{
    QStringList pages;
    for (const QString &range : ranges.split(',', Qt::SkipEmptyParts)) {
        QStringList ends;
        for (const QString &end : range.split('-')) {
            bool isNumber = false;
            const int page = end.trimmed().toInt(&isNumber);
            if (!isNumber || page < 0 || page == std::numeric_limits<int>::max())
                return {};
            ends.append(QString::number(page + 1));
        }
        pages.append(ends.join('-'));
    }
    return readPageRanges(pages.join(',')).value_or(QString());
}

} // namespace

QVariantMap harmlessSettings(const QVariantMap &settings)
{
    QVariantMap harmless;
    for (auto each = settings.begin(); each != settings.end() && harmless.size() < kMostSettings; ++each)
        if (each.value().metaType() == QMetaType::fromType<QString>() && each.key().size() <= kLongestKey &&
            each.value().toString().size() <= kLongestValue)
            harmless[each.key()] = each.value();
    return harmless;
}

void readSettings(const QVariantMap &settings, DialogWish &wish)
{
    wish.printer = foundation::plainLine(settings[kPrinter].toString());
    wish.copies = readCopies(settings[kCopies].toString());
    if (settings[kPrintPages] == "ranges")
        wish.pages = pagesFromRanges(settings[kPageRanges].toString());
    for (auto each = settings.begin(); each != settings.end(); ++each)
        if (const QString option = each.key().mid(kDriverOption.size());
            each.key().startsWith(kDriverOption) && canBeDriverOption(option))
            wish.options[option] = foundation::plainLine(each.value().toString());
}

QVariantMap settingsToReturn(const QVariantMap &own, const PreparedPrint &prepared)
{
    QVariantMap settings = own;
    settings.removeIf([](const auto &each) { return each.key().startsWith(kDriverOption); });
    for (const SettingRow &row : kSettingRows) {
        if (row.value)
            settings[row.key] = QString(row.value);
        else
            settings.remove(row.key);
    }
    if (!prepared.queue.isEmpty())
        settings[kPrinter] = prepared.queue;
    const OptionValues kept = withoutSecrets(prepared.options, prepared.secrets);
    for (const auto &[keyword, value] : kept.asKeyValueRange())
        if (canBeDriverOption(keyword))
            settings[kDriverOption + keyword] = value;
    return settings;
}

namespace {

const PreparedPaper kA4{"iso_a4", "A4", 210, 297, 0, 0, 0, 0};

/// What the application had, as far as it is a paper.
PreparedPaper paperOf(const QVariantMap &setup)
{
    const auto millimetres = [&setup](const char *key) {
        constexpr double kMost = 100'000;
        const QVariant value = setup.value(key);
        const double number = value.metaType() == QMetaType::fromType<double>() ? value.toDouble() : 0;
        return number > 0 && number <= kMost ? number : 0; // which a number that is none does not either
    };
    const auto text = [&setup](const char *key) { return foundation::plainLine(setup.value(key).toString()); };
    const PreparedPaper paper{text("PPDName"),           text("DisplayName"),       millimetres("Width"),
                              millimetres("Height"),     millimetres("MarginTop"),  millimetres("MarginBottom"),
                              millimetres("MarginLeft"), millimetres("MarginRight")};
    return paper.width > 0 && paper.height > 0 ? paper : kA4;
}

} // namespace

QVariantMap pageSetupToReturn(const QVariantMap &own, const PreparedPrint &prepared)
{
    static const QStringList kKnown{"portrait",          "landscape",        "reverse_portrait",
                                    "reverse_landscape", "reverse-portrait", "reverse-landscape"};
    const PreparedPaper paper = prepared.paper.width > 0 ? prepared.paper : paperOf(own);
    const QString orientation = own["Orientation"].toString();
    return {{"PPDName", paper.name},
            {"DisplayName", paper.text},
            {"Width", paper.width},
            {"Height", paper.height},
            {"MarginTop", paper.top},
            {"MarginBottom", paper.bottom},
            {"MarginLeft", paper.left},
            {"MarginRight", paper.right},
            {"Orientation", kKnown.contains(orientation) ? orientation : QString("portrait")}};
}

QString plainTitle(const QString &title)
{
    QString plain = foundation::plainLine(title).trimmed();
    const qsizetype at = plain.indexOf('&');
    if (at >= 0 && at + 1 < plain.size() && plain[at + 1].isLetterOrNumber())
        plain.remove(at, 1);
    if (plain.startsWith('_')) // within a word it may be a name's own
        plain.remove(0, 1);
    for (const QString &ellipsis : {QString("…"), QString("...")})
        if (plain.endsWith(ellipsis))
            plain.chop(ellipsis.size());
    return plain.trimmed();
}

QString jobTitle(const QString &title, const QString &dialogTitle)
{
    const QString plain = foundation::plainLine(title).trimmed();
    return plainTitle(plain) == plainTitle(dialogTitle) ? QString() : plain;
}

} // namespace host
