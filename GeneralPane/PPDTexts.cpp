// The record's texts stay as they are: they are keys to other parts of a dialog.
#include "PPDTexts.h"

#include "Foundation/Bundle.h"

namespace {

constexpr auto kTitles = "Translation"; // table of groups and options

} // namespace

PPDTexts::PPDTexts(ppd_file_t &ppd, const foundation::Bundle &bundle)
    : m_ppd(ppd)
    , m_bundle(bundle)
{}

QString PPDTexts::group(const ppd_group_t &group) const { return translated(kTitles, group.name, group.text); }

QString PPDTexts::option(const ppd_option_t &option) const { return translated(kTitles, option.keyword, option.text); }

QString PPDTexts::choice(const ppd_option_t &option, const ppd_choice_t &choice) const
{
    return translated(option.keyword, choice.choice, choice.text);
}

QString PPDTexts::translated(const char *table, const char *of, const char *text) const
{
    const QString language = m_bundle.requestedLocalization();
    for (const QString &name : {language, language.section('_', 0, 0)}) {
        const QByteArray keyword = name.toUtf8() + '.' + table;
        const ppd_attr_t *const translation = ppdFindAttr(&m_ppd, keyword.constData(), of);
        if (translation && *translation->text)
            return QString::fromUtf8(translation->text);
    }
    return m_bundle.localizedString(QString::fromUtf8(*text ? text : of));
}
