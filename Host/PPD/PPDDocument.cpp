// Opening, marking and asking a PPD.
#include "PPDDocument.h"

#include "Foundation/Text.h"

#include <QFile>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace host {

namespace {

constexpr auto kCustom = "Custom";
constexpr auto kCustomPrefix = "Custom.";
constexpr auto kPageSize = "PageSize";
constexpr auto kPageRegion = "PageRegion";

QString text(const char *bytes) { return QString::fromUtf8(bytes); }

/// A regular file to read from, -1 with a sentence otherwise. Opened without waiting, so that a pipe can't hold us.
int openRegularFile(const QString &path, QString *error)
{
    const int fd = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    struct stat status = {};
    if (fd < 0 || ::fstat(fd, &status) != 0) {
        *error = QString("%1: %2").arg(path, text(std::strerror(errno)));
    } else if (!S_ISREG(status.st_mode)) {
        *error = QString("%1: not a file").arg(path);
    } else if (status.st_size == 0) {
        *error = QString("%1: not a PPD file (the file is empty)").arg(path);
    } else {
        return fd;
    }
    if (fd >= 0)
        ::close(fd);
    return -1;
}

void collectOptions(ppd_group_t &group, std::vector<ppd_option_t *> &options)
{
    for (int i = 0; i < group.num_options; ++i)
        options.push_back(&group.options[i]);
    for (int i = 0; i < group.num_subgroups; ++i)
        collectOptions(group.subgroups[i], options);
}

bool isPlainDecimal(const QString &value)
{
    static const QRegularExpression decimal(R"(^[+-]?([0-9]+(\.[0-9]*)?|\.[0-9]+)$)",
                                            QRegularExpression::DontCaptureOption);
    return decimal.match(value).hasMatch() && !value.endsWith('\n');
}

/// Both ends belong to the range. The limits are single-precision, so the value is compared as such.
bool isInRange(const ppd_cparam_t &parameter, double value)
{
    const auto number = static_cast<float>(value);
    const auto within = [number](float least, float largest) { return least <= number && number <= largest; };
    switch (parameter.type) {
    case PPD_CUSTOM_REAL: return within(parameter.minimum.custom_real, parameter.maximum.custom_real);
    case PPD_CUSTOM_CURVE: return within(parameter.minimum.custom_curve, parameter.maximum.custom_curve);
    case PPD_CUSTOM_INVCURVE: return within(parameter.minimum.custom_invcurve, parameter.maximum.custom_invcurve);
    case PPD_CUSTOM_POINTS: return within(parameter.minimum.custom_points, parameter.maximum.custom_points);
    case PPD_CUSTOM_INT: return value >= parameter.minimum.custom_int && value <= parameter.maximum.custom_int;
    default: return false; // texts have no range of numbers
    }
}

QString compact(double number) { return QString::number(number, 'g', 6); }

QString customMark(const printing::Paper &paper)
{
    return kCustomPrefix + compact(paper.width) + 'x' + compact(paper.height);
}

/// Of "WIDTHxHEIGHT", in points unless a unit follows, as CUPS programs write custom sizes.
std::optional<printing::Paper> customSize(const QString &value)
{
    static const QRegularExpression form(R"(^([0-9.]+)x([0-9.]+)(pt|in|ft|mm|cm|m)?$)");
    static const QHash<QString, double> points{{"", 1},           {"pt", 1},         {"in", 72},        {"ft", 12 * 72},
                                               {"mm", 72 / 25.4}, {"cm", 72 / 2.54}, {"m", 72 / 0.0254}};
    const auto match = form.match(value);
    if (!match.hasMatch() || !isPlainDecimal(match.captured(1)) || !isPlainDecimal(match.captured(2)))
        return std::nullopt;
    const double unit = points.value(match.captured(3));
    return printing::Paper{foundation::doubleValue(match.captured(1)) * unit,
                           foundation::doubleValue(match.captured(2)) * unit};
}

bool isWithinLimits(const ppd_file_t &ppd, const printing::Paper &paper)
{
    const auto width = static_cast<float>(paper.width);
    const auto height = static_cast<float>(paper.height);
    return ppd.custom_min[0] <= width && width <= ppd.custom_max[0] && ppd.custom_min[1] <= height &&
           height <= ppd.custom_max[1];
}

} // namespace

std::unique_ptr<PPDDocument> PPDDocument::open(const QString &path, QString *error)
{
    const int fd = openRegularFile(path, error);
    if (fd < 0)
        return nullptr;
    printing::PPDFile file(ppdOpenFd(fd)); // closes the descriptor
    if (!file) {
        int line = 0;
        const ppd_status_t status = ppdLastError(&line);
        *error = QString("%1: not a PPD file (line %2: %3)").arg(path).arg(line).arg(text(ppdErrorString(status)));
        return nullptr;
    }
    return std::unique_ptr<PPDDocument>(new PPDDocument(std::move(file)));
}

PPDDocument::PPDDocument(printing::PPDFile file)
    : m_file(std::move(file))
{
    for (int i = 0; i < m_file->num_groups; ++i)
        collectOptions(m_file->groups[i], m_options);
    for (const ppd_option_t *option : m_options) {
        m_declaredDefaults.emplace_back(option->defchoice);
        if (m_declaredDefaults.back().startsWith(kCustomPrefix))
            m_customValues[option] = text(option->defchoice + std::strlen(kCustomPrefix));
    }
    ppdMarkDefaults(m_file.get());
}

ppd_option_t *PPDDocument::findOption(const QString &keyword) const
{
    ppd_option_t *const option = ppdFindOption(m_file.get(), keyword.toUtf8().constData());
    return option && keyword == option->keyword ? option : nullptr; // the library does not mind letter case; we do
}

bool PPDDocument::canMark(const ppd_option_t &option, const QString &choice, QString *markAs) const
{
    const QByteArray keyword = choice.toUtf8();
    for (int i = 0; i < option.num_choices; ++i) {
        if (keyword == option.choices[i].choice) {
            *markAs = choice;
            return true;
        }
    }
    ppd_coption_t *const custom = ppdFindCustomOption(m_file.get(), option.keyword);
    ppd_cparam_t *const parameter = custom ? ppdFirstCustomParam(custom) : nullptr; // the first in the file
    if (!parameter || keyword.isEmpty() || std::strcmp(option.keyword, kPageSize) == 0 || !isPlainDecimal(choice) ||
        !isInRange(*parameter, foundation::doubleValue(choice)))
        return false;
    *markAs = kCustomPrefix + choice;
    return true;
}

/// How to mark a value as saved options and command lines give it: custom values with their prefix, custom sizes too.
std::optional<QString> PPDDocument::savedMark(const ppd_option_t &option, const QString &value) const
{
    QString markAs;
    if (canMark(option, value, &markAs))
        return markAs;
    if (!value.startsWith(kCustomPrefix))
        return std::nullopt;
    const QString bare = value.mid(static_cast<qsizetype>(std::strlen(kCustomPrefix)));
    if (std::strcmp(option.keyword, kPageSize) == 0) {
        const auto size = customSize(bare);
        return size && hasCustomPageSize() && isWithinLimits(*m_file, *size) ? std::optional(customMark(*size))
                                                                             : std::nullopt;
    }
    return canMark(option, bare, &markAs) ? std::optional(markAs) : std::nullopt;
}

void PPDDocument::adoptDefaults(const OptionValues &values)
{
    for (const auto &[keyword, value] : values.asKeyValueRange()) {
        ppd_option_t *const option = findOption(keyword);
        const auto markAs = option ? savedMark(*option, value) : std::nullopt;
        if (!markAs)
            continue;
        const QByteArray choice = markAs->startsWith(kCustomPrefix) ? QByteArray(kCustom) : markAs->toUtf8();
        std::strncpy(option->defchoice, choice.constData(), sizeof(option->defchoice) - 1);
        option->defchoice[sizeof(option->defchoice) - 1] = '\0';
        markOne(*option, markAs->toUtf8());
    }
}

bool PPDDocument::canTake(const QString &keyword, const QString &value) const
{
    const ppd_option_t *const option = findOption(keyword);
    return option && savedMark(*option, value);
}

PPDDocument::Changes PPDDocument::restore(const OptionValues &values)
{
    const Marks before = marks();
    for (std::size_t i = 0; i < m_options.size(); ++i) {
        ppd_option_t &option = *m_options[i];
        if (std::strcmp(option.keyword, kPageRegion) == 0) // marking it would take the mark off the page size
            continue;
        const auto saved = savedMark(option, values.value(text(option.keyword)));
        markOne(option, saved ? saved->toUtf8() : m_declaredDefaults[i]);
    }
    resolveConflicts(nullptr, {});
    return changesSince(before, nullptr);
}

std::optional<PPDDocument::Changes> PPDDocument::mark(const QString &keyword, const QString &choice)
{
    ppd_option_t *const option = findOption(keyword);
    QString markAs;
    if (!option || !canMark(*option, choice, &markAs))
        return std::nullopt;
    return apply(*option, markAs);
}

std::optional<PPDDocument::Changes> PPDDocument::markCustomPageSize(const printing::Paper &paper)
{
    ppd_option_t *const option = findOption(kPageSize);
    if (!option || !hasCustomPageSize())
        return std::nullopt;
    return apply(*option, customMark(paper));
}

PPDDocument::Changes PPDDocument::apply(ppd_option_t &option, const QString &markAs)
{
    const Marks before = marks();
    const QByteArray choice = markAs.toUtf8();
    markOne(option, choice);
    resolveConflicts(&option, choice);
    return changesSince(before, &option);
}

PPDDocument::Changes PPDDocument::changesSince(const Marks &before, const ppd_option_t *first) const
{
    const Marks after = marks();
    Changes changes;
    for (std::size_t i = 0; i < m_options.size(); ++i) {
        if (before[i] == after[i])
            continue;
        Change change{text(m_options[i]->keyword), text(after[i])};
        changes.insert(m_options[i] == first ? changes.begin() : changes.end(), std::move(change));
    }
    return changes;
}

void PPDDocument::markOne(ppd_option_t &option, const QByteArray &choice)
{
    if (choice.startsWith(kCustomPrefix))
        m_customValues[&option] = text(choice.constData() + std::strlen(kCustomPrefix));
    ppdMarkOption(m_file.get(), option.keyword, choice.constData());
}

/// The choice that now forbids another one; the one asked for before others.
PPDDocument::Change PPDDocument::causeOf(const Change &moved, const ppd_option_t *asked) const
{
    cups_option_t *options = nullptr;
    const int count =
        cupsGetConflicts(m_file.get(), moved.keyword.toUtf8().constData(), moved.choice.toUtf8().constData(), &options);
    Change cause;
    for (int i = 0; i < count; ++i)
        if (moved.keyword != options[i].name &&
            (cause.keyword.isEmpty() || (asked && qstrcmp(asked->keyword, options[i].name) == 0)))
            cause = {text(options[i].name), text(options[i].value)};
    cupsFreeOptions(count, options);
    return cause;
}

/// Without an option asked for, every choice may be moved.
void PPDDocument::resolveConflicts(const ppd_option_t *asked, const QByteArray &choice)
{
    if (ppdConflicts(m_file.get()) == 0)
        return;
    cups_option_t *options = nullptr;
    int count = 0;
    if (cupsResolveConflicts(m_file.get(), asked ? asked->keyword : nullptr, asked ? choice.constData() : nullptr,
                             &count, &options)) {
        for (int i = 0; i < count; ++i) {
            ppd_option_t *const moved = ppdFindOption(m_file.get(), options[i].name);
            if (!moved || moved == asked)
                continue;
            const QString before = text(markedKeyword(*moved));
            markOne(*moved, options[i].value);
            if (before != markedKeyword(*moved))
                m_moves.push_back({{text(moved->keyword), before},
                                   text(markedKeyword(*moved)),
                                   causeOf({text(moved->keyword), before}, asked)});
        }
    }
    cupsFreeOptions(count, options);
}

const char *PPDDocument::markedKeyword(const ppd_option_t &option) const
{
    const ppd_choice_t *const choice = ppdFindMarkedChoice(m_file.get(), option.keyword);
    return choice ? choice->choice : "";
}

PPDDocument::Marks PPDDocument::marks() const
{
    Marks result;
    result.reserve(m_options.size());
    for (const ppd_option_t *option : m_options)
        result.emplace_back(markedKeyword(*option));
    return result;
}

QString PPDDocument::markedValue(const ppd_option_t &option, bool forPeople) const
{
    const char *const keyword = markedKeyword(option);
    const auto custom = m_customValues.constFind(&option);
    if (std::strcmp(keyword, kCustom) != 0 || custom == m_customValues.cend())
        return text(keyword);
    const bool isNumber = forPeople && isPlainDecimal(*custom);
    return kCustomPrefix + (isNumber ? compact(foundation::doubleValue(*custom)) : *custom);
}

OptionValues PPDDocument::marked() const
{
    OptionValues values;
    for (const ppd_option_t *option : m_options)
        if (*markedKeyword(*option))
            values.insert(text(option->keyword), markedValue(*option, true));
    return values;
}

OptionValues PPDDocument::jobOptions() const
{
    OptionValues values;
    for (std::size_t i = 0; i < m_options.size(); ++i) {
        const ppd_option_t &option = *m_options[i];
        const char *const keyword = markedKeyword(option);
        const bool isPageSize = std::strcmp(option.keyword, kPageSize) == 0;
        if (*keyword && (isPageSize || m_declaredDefaults[i] != keyword))
            values.insert(text(option.keyword), markedValue(option, false));
    }
    return values;
}

OptionValues PPDDocument::generalAmong(const OptionValues &options) const
{
    OptionValues result;
    for (const auto &[keyword, value] : options.asKeyValueRange())
        if (!findOption(keyword))
            result.insert(keyword, value);
    return result;
}

QString PPDDocument::choiceMarked(const QString &keyword) const
{
    const ppd_option_t *const option = findOption(keyword);
    return option ? text(markedKeyword(*option)) : QString();
}

QString PPDDocument::defaultOf(const QString &keyword) const
{
    const auto option = std::ranges::find(m_options, findOption(keyword));
    return option == m_options.end()
               ? QString()
               : text(m_declaredDefaults[static_cast<std::size_t>(option - m_options.begin())].constData());
}

QString PPDDocument::optionText(const QString &keyword) const
{
    const ppd_option_t *const option = findOption(keyword);
    return option && *option->text ? text(option->text) : keyword;
}

QString PPDDocument::choiceText(const QString &keyword, const QString &choice, const QString &language) const
{
    for (const QString &name : {language, language.section('_', 0, 0)}) {
        const QByteArray table = (name + '.' + keyword).toUtf8();
        const ppd_attr_t *const translated = ppdFindAttr(m_file.get(), table.constData(), choice.toUtf8().constData());
        if (translated && *translated->text)
            return text(translated->text);
    }
    ppd_option_t *const option = findOption(keyword);
    const ppd_choice_t *const found = option ? ppdFindChoice(option, choice.toUtf8().constData()) : nullptr;
    return found && *found->text ? text(found->text) : choice;
}

QString PPDDocument::pageSizeName() const { return choiceMarked(kPageSize); }

std::optional<printing::Paper> PPDDocument::customPageSize() const
{
    const ppd_option_t *const option = findOption(kPageSize);
    return option && pageSizeName() == kCustom ? customSize(m_customValues.value(option)) : std::nullopt;
}

std::optional<printing::Paper> PPDDocument::pageSize(const QString &name) const
{
    for (int i = 0; i < m_file->num_sizes; ++i) {
        const ppd_size_t &size = m_file->sizes[i];
        if (name == text(size.name) && name != kCustom)
            return printing::Paper{size.width, size.length};
    }
    return std::nullopt;
}

std::vector<PPDDocument::PageSize> PPDDocument::pageSizes(const QString &language) const
{
    std::vector<PageSize> result;
    const ppd_option_t *const option = findOption(kPageSize);
    for (int i = 0; option && i < option->num_choices; ++i) {
        const QString name = text(option->choices[i].choice);
        if (const auto paper = pageSize(name))
            result.push_back({name, choiceText(kPageSize, name, language), *paper});
    }
    return result;
}

std::optional<QString> PPDDocument::attribute(const char *name) const
{
    const ppd_attr_t *const found = ppdFindAttr(m_file.get(), name, nullptr);
    return found && found->value ? std::optional(text(found->value)) : std::nullopt;
}

} // namespace host
