// What can be wrong with any PPD: the table of checks, and those that read options and their choices.
#include "CommonChecks.h"

#include <QSet>

#include <algorithm>
#include <array>

namespace host {

namespace {

struct CheckRow
{
    const char *name;
    PDESeverity severity;
    const char *looksFor;
    const char *why;
    const char *good;
    const char *bad;
};

constexpr std::array kRows{
    CheckRow{check::kOpen, PDESeverity::error, "A file that can be opened as a PPD; otherwise nothing else is checked.",
             "The dialog refuses the printer with the same reason.", "*PPD-Adobe: \"4.3\"", "PPD-Adobe: \"4.3\""},
    CheckRow{check::kConformance, PDESeverity::error,
             "What cupstestppd of CUPS fails on, where it is installed; filters and colour profiles are left out, as "
             "they need not be on this machine.",
             "The CUPS server may refuse the PPD, or the printer what is made by it.", "*LanguageVersion: English\n",
             ""},
    CheckRow{check::kStructure, PDESeverity::error,
             "Options that begin and end, choices and defaults that stand once, statements with their colon, values "
             "with both quotation marks.",
             "The library takes what it can of such lines, and leaves out the rest without a word.",
             "*CloseUI: *Resolution", "*CloseUI: *Resolutoin"},
    CheckRow{check::kPageSize, PDESeverity::error,
             "The same page sizes in PageSize, PageRegion, ImageableArea and PaperDimension, each with its measures.",
             "A paper without measures has none in the dialog, in its preview and for the driver; one that only has "
             "measures can't be chosen.",
             "*PaperDimension A5: \"420 595\"", "*PaperDimension A5: \"420\""},
    CheckRow{check::kConstraint, PDESeverity::error,
             "UIConstraints and cupsUIConstraints of options and choices that the PPD has.",
             "A constraint on anything else never holds: the choices that it forbids are printed.",
             "*UIConstraints: *PageSize A5 *Resolution 203dpi", "*UIConstraints: *PageSize A5 *Resolution 300dpi"},
    CheckRow{check::kDefaultChoice, PDESeverity::error, "A default for each option that is one of its choices.",
             "No choice is marked at first, and what a panel shows then is not what is printed.",
             "*DefaultResolution: 203dpi", "*DefaultResolution: 300dpi"},
    CheckRow{check::kEmptyText, PDESeverity::warning, "A text for each option and each choice.",
             "People read the keyword that is meant for the driver, or nothing at all.",
             "*OpenUI *Resolution/Resolution: PickOne", "*OpenUI *Resolution: PickOne"},
    CheckRow{check::kEncoding, PDESeverity::error,
             "LanguageEncoding, and texts that are in it and hold no control characters.",
             "Such texts come out as others, or not at all.", "*LanguageEncoding: UTF-8", "*LanguageEncoding: UTF-9"},
    CheckRow{check::kTranslation, PDESeverity::warning,
             "Languages that translate an option in part, and translations of what the PPD does not have.",
             "A list in two languages at once.", "*de.PageSize A5/A5: \"\"\n", ""},
    CheckRow{check::kExtension, PDESeverity::warning,
             "APDialogExtension, where a bundle takes care of an option of the PPD, and the bundle that it names.",
             "The dialog takes the first bundle whose panels take care of an option, else the general one: panels "
             "that were made for another printer, or for whatever printer.",
             "*APDialogExtension: \"Installed.plugin\"", "*APDialogExtension: \"Another.plugin\""},
    CheckRow{check::kNoBundle, PDESeverity::note,
             "Nothing: it tells of a PPD that no installed bundle is made for, and which panels people get.",
             "Nothing: the dialog serves the printer. A bundle of its own could say more, in the dialog and here.", "",
             ""},
    CheckRow{
        check::kConflict, PDESeverity::error,
        "Settings in which the panels show one choice and another one is marked, or which never settle: the real "
        "panels are run through every paper and every choice of the menus that decide, as a person would pick "
        "them, and save after each.",
        "What is printed is not what the person saw. Mostly the PPD's constraints forbid what the panels' own rules "
        "settle on.",
        "", "*UIConstraints: *PageSize A5 *Resolution 203dpi"},
    CheckRow{check::kUnchecked, PDESeverity::note, "Nothing: it tells what could not be checked, and why.",
             "The PPD may have findings that are not shown.", "", ""},
};

PDECheck described(const CheckRow &row) { return {row.name, row.severity, row.looksFor, row.why, row.good, row.bad}; }

QByteArrayView view(const char *text) { return {text}; }

/// The choices of an option, as the file lists them.
const std::vector<const PDEStatement *> &choicesOf(const CheckedText &text, const ppd_option_t &option)
{
    return text.index.of(view(option.keyword));
}

} // namespace

std::vector<PDECheck> commonChecks()
{
    std::vector<PDECheck> checks;
    std::ranges::transform(kRows, std::back_inserter(checks), described);
    return checks;
}

void findInText(const CheckedText &text, Findings &findings)
{
    for (auto *const find : {findStructure, findPageSizes, findConstraints, findDefaultChoices, findEmptyTexts,
                             findEncoding, findTranslations})
        find(text, findings);
}

void findDefaultChoices(const CheckedText &text, Findings &findings)
{
    for (const ppd_option_t *option : text.ppd.options()) {
        const QByteArrayView keyword = view(option->keyword);
        const PDEStatement *const standard = text.index.first("Default" + keyword.toByteArray());
        const int line = standard ? standard->line : text.index.lineOfOption(keyword);
        const auto isDefault = [&](const PDEStatement *each) { return standard && each->option == standard->value; };
        const auto &choices = choicesOf(text, *option);
        if (!standard || standard->value.isEmpty())
            findings.add(check::kDefaultChoice, line,
                         QString("%1 has no default: nothing is marked at first").arg(option->keyword), keyword);
        else if (std::ranges::none_of(choices, isDefault) && !standard->value.startsWith("Custom"))
            findings.add(check::kDefaultChoice, line,
                         QString("%1: the default %2 is none of the choices, so nothing is marked at first")
                             .arg(option->keyword, quoted(standard->value)),
                         keyword);
    }
}

void findEmptyTexts(const CheckedText &text, Findings &findings)
{
    for (const PDEStatement *each : text.index.of("OpenUI"))
        if (each->text.isEmpty())
            findings.add(check::kEmptyText, each->line,
                         QString("the option %1 has no text: people read its keyword").arg(quoted(openedBy(*each))),
                         openedBy(*each));
    for (const ppd_option_t *option : text.ppd.options())
        for (const PDEStatement *each : choicesOf(text, *option))
            if (each->text.isEmpty() && !each->option.isEmpty())
                findings.add(check::kEmptyText, each->line,
                             QString("the choice %1 of %2 has no text: people read its keyword")
                                 .arg(quoted(each->option), option->keyword),
                             view(option->keyword));
}

} // namespace host
