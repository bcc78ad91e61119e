// What a PPD file says. The library does not mind the letter case of keywords and choices; this dialog does, as the
// filters of a printer do.
#include "PPDDocument.h"

#include "PPDLimits.h"
#include "PPDProblems.h"

#include "Foundation/RegularFile.h"

#include <cstring>
#include <sys/mman.h>
#include <unistd.h>

namespace host {

using foundation::Or;
using foundation::Problem;

namespace {

QString text(const char *bytes) { return QString::fromUtf8(bytes); }

void collectOptions(ppd_group_t &group, std::vector<ppd_option_t *> &options)
{
    for (int i = 0; i < group.num_options; ++i)
        options.push_back(&group.options[i]);
    for (int i = 0; i < group.num_subgroups; ++i)
        collectOptions(group.subgroups[i], options);
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

bool isWithin(const CustomSizeLimits &limits, const printing::Paper &size)
{
    const auto within = [](double least, double side, double largest) {
        return least <= static_cast<float>(side) && static_cast<float>(side) <= largest;
    };
    return within(limits.smallest.width, size.width, limits.largest.width) &&
           within(limits.smallest.height, size.height, limits.largest.height);
}

bool isListed(const ppd_option_t &option, const QByteArray &keyword)
{
    for (int i = 0; i < option.num_choices; ++i)
        if (keyword == option.choices[i].choice)
            return true;
    return false;
}

} // namespace

Or<std::unique_ptr<PPDDocument>> PPDDocument::open(const QString &path, int *line)
{
    const auto content = foundation::openRegularFile(path);
    if (!content)
        return content.problem();
    if ((*content)->size() == 0)
        return Problem{tr("%1: not a PPD file (the file is empty)").arg(path)};
    if (const auto within = ppdContent(**content); !within)
        return Problem{tr("%1: not opened (%2)").arg(path, within.problem().sentence)};
    printing::PPDFile file(ppdOpenFd(::dup((*content)->handle()))); // closes the descriptor that it is given
    if (!file) {
        int reached = 0;
        const ppd_status_t status = ppdLastError(&reached);
        if (line)
            *line = reached;
        return Problem{
            tr("%1: not a PPD file (line %2: %3)").arg(path, QString::number(reached), ppdProblemText(status))};
    }
    return std::unique_ptr<PPDDocument>(new PPDDocument(std::move(file)));
}

Or<std::unique_ptr<PPDDocument>> PPDDocument::ofText(const QByteArray &text)
{
    QFile file; // in memory: it goes with its descriptor
    if (!file.open(::memfd_create("ppd", MFD_CLOEXEC), QFile::ReadWrite, QFile::AutoCloseHandle) ||
        file.write(text) != text.size() || !file.flush())
        return Problem{file.errorString()};
    return open(QString("/proc/self/fd/%1").arg(file.handle()));
}

PPDDocument::PPDDocument(printing::PPDFile file)
    : m_file(std::move(file))
{
    for (int i = 0; i < m_file->num_groups; ++i)
        collectOptions(m_file->groups[i], m_options);
}

ppd_option_t *PPDDocument::option(const QString &keyword) const
{
    ppd_option_t *const found = ppdFindOption(m_file.get(), keyword.toUtf8().constData());
    return found && keyword == found->keyword ? found : nullptr;
}

bool PPDDocument::isPageSize(const ppd_option_t &option) const { return std::strcmp(option.keyword, kPageSize) == 0; }

std::optional<ChoiceValue> PPDDocument::choice(const ppd_option_t &option, const QString &text) const
{
    if (isListed(option, text.toUtf8()))
        return ChoiceValue{text};
    if (isPageSize(option))
        return std::nullopt;
    if (const auto allowed = customText(option)) { // bare, it could be taken for the keyword of a choice
        auto custom = CustomValue::fromText(text);
        return custom && allowed->allows(custom->bare()) ? std::optional(ChoiceValue::ofCustom(*std::move(custom)))
                                                         : std::nullopt;
    }
    ppd_coption_t *const custom = ppdFindCustomOption(m_file.get(), option.keyword);
    ppd_cparam_t *const parameter = custom ? ppdFirstCustomParam(custom) : nullptr; // the first in the file
    const CustomValue value(text);
    const auto number = value.number();
    return parameter && number && isInRange(*parameter, *number) ? std::optional(ChoiceValue::ofCustom(value))
                                                                 : std::nullopt;
}

std::optional<ChoiceValue> PPDDocument::savedChoice(const ppd_option_t &option, const QString &text) const
{
    if (auto found = choice(option, text))
        return found;
    const auto custom = CustomValue::fromText(text);
    if (!custom || (!isPageSize(option) && customText(option)))
        return std::nullopt;
    if (!isPageSize(option))
        return choice(option, custom->bare());
    const auto size = custom->size();
    const auto limits = customSizeLimits();
    return size && limits && isWithin(*limits, *size) ? std::optional(ChoiceValue::ofCustom(CustomValue(*size)))
                                                      : std::nullopt;
}

bool PPDDocument::accepts(const QString &keyword, const QString &text) const
{
    const ppd_option_t *const found = option(keyword);
    return found && savedChoice(*found, text);
}

bool PPDDocument::hasCustomParameter(const QString &keyword, const char *parameter) const
{
    ppd_coption_t *const custom = ppdFindCustomOption(m_file.get(), keyword.toUtf8().constData());
    return custom && ppdFindCustomParam(custom, parameter);
}

std::optional<printing::CustomText> PPDDocument::customText(const ppd_option_t &option) const
{
    return printing::CustomText::of(*m_file, option.keyword);
}

QStringList PPDDocument::secretOptions() const
{
    QStringList keywords;
    for (const ppd_option_t *option : m_options)
        if (const auto allowed = customText(*option); allowed && allowed->isSecret())
            keywords.append(text(option->keyword));
    return keywords;
}

OptionValues PPDDocument::unknownAmong(const OptionValues &options) const
{
    OptionValues result;
    for (const auto &[keyword, value] : options.asKeyValueRange())
        if (!hasOption(keyword) || !canBeDriverOption(keyword))
            result.insert(keyword, value);
    return result;
}

bool PPDDocument::takesPoints(const QString &keyword) const
{
    ppd_coption_t *const custom = ppdFindCustomOption(m_file.get(), keyword.toUtf8().constData());
    const ppd_cparam_t *const parameter = custom ? ppdFirstCustomParam(custom) : nullptr;
    return parameter && parameter->type == PPD_CUSTOM_POINTS;
}

/// Of a language with its region, else of the language.
std::optional<QString> PPDDocument::translation(const QString &language, const QString &table, const QString &of) const
{
    for (const QString &name : {language, language.section('_', 0, 0)}) {
        const ppd_attr_t *const translated =
            ppdFindAttr(m_file.get(), (name + '.' + table).toUtf8().constData(), of.toUtf8().constData());
        if (translated && *translated->text)
            return text(translated->text);
    }
    return std::nullopt;
}

QString PPDDocument::optionText(const QString &keyword, const QString &language) const
{
    if (const auto translated = translation(language, "Translation", keyword))
        return *translated;
    const ppd_option_t *const found = option(keyword);
    return found && *found->text ? text(found->text) : keyword;
}

QString PPDDocument::choiceText(const QString &keyword, const QString &choice, const QString &language) const
{
    if (const auto translated = translation(language, keyword, choice))
        return *translated;
    ppd_option_t *const owner = option(keyword);
    const ppd_choice_t *const found = owner ? ppdFindChoice(owner, choice.toUtf8().constData()) : nullptr;
    return found && *found->text ? text(found->text) : choice;
}

const ppd_size_t *PPDDocument::listedSize(const QString &name) const
{
    for (int i = 0; i < m_file->num_sizes; ++i)
        if (name == text(m_file->sizes[i].name) && name != kCustomChoice)
            return &m_file->sizes[i];
    return nullptr;
}

std::optional<printing::Paper> PPDDocument::pageSize(const QString &name) const
{
    const ppd_size_t *const size = listedSize(name);
    return size ? std::optional(printing::Paper{size->width, size->length}) : std::nullopt;
}

QRectF PPDDocument::printableArea(const std::optional<QString> &name, const printing::Paper &size) const
{
    const QRectF whole(0, 0, size.width, size.height);
    const ppd_size_t *const listed = name ? listedSize(*name) : nullptr;
    const float *const margins = m_file->custom_margins; // left, bottom, right, top
    const QRectF area = listed ? QRectF(QPointF(listed->left, size.height - listed->top),
                                        QPointF(listed->right, size.height - listed->bottom))
                               : whole.adjusted(margins[0], margins[3], -margins[2], -margins[1]);
    const QRectF reached = area & whole;
    return reached.width() > 0 && reached.height() > 0 ? reached : whole;
}

std::vector<PaperEntry> PPDDocument::papers(const QString &language) const
{
    std::vector<PaperEntry> result;
    const ppd_option_t *const sizes = option(kPageSize);
    for (int i = 0; sizes && i < sizes->num_choices; ++i) {
        const QString name = text(sizes->choices[i].choice);
        if (const auto size = pageSize(name))
            result.push_back({name, choiceText(kPageSize, name, language), *size});
    }
    return result;
}

std::optional<CustomSizeLimits> PPDDocument::customSizeLimits() const
{
    if (!m_file->variable_sizes)
        return std::nullopt;
    return CustomSizeLimits{{m_file->custom_min[0], m_file->custom_min[1]},
                            {m_file->custom_max[0], m_file->custom_max[1]}};
}

bool PPDDocument::takesPDF() const
{
    const auto isForPDF = [](const char *filter) {
        return filter && text(filter).simplified().section(' ', 0, 0) == "application/pdf";
    };
    const ppd_attr_t *filter = ppdFindAttr(m_file.get(), "cupsFilter2", nullptr);
    if (!filter) // the older form counts where there is none of the newer
        return std::any_of(m_file->filters, m_file->filters + m_file->num_filters, isForPDF);
    while (filter && !isForPDF(filter->value))
        filter = ppdFindNextAttr(m_file.get(), "cupsFilter2", nullptr);
    return filter;
}

std::optional<QString> PPDDocument::attribute(const char *name) const
{
    const ppd_attr_t *const found = ppdFindAttr(m_file.get(), name, nullptr);
    return found && found->value ? std::optional(text(found->value)) : std::nullopt;
}

} // namespace host
