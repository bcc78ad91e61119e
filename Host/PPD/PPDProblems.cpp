// Why the library can't read a PPD.
#include "PPDProblems.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace host {

namespace {

struct ProblemRow
{
    ppd_status_t status;
    const char *text;
};

constexpr auto kNoHeader = QT_TRANSLATE_NOOP("host::PPDProblems", "the header of a PPD file is missing");
constexpr auto kNoAsterisk = QT_TRANSLATE_NOOP("host::PPDProblems", "the asterisk before a keyword is missing");
constexpr auto kNoValue = QT_TRANSLATE_NOOP("host::PPDProblems", "a value is missing");
constexpr auto kTooLong = QT_TRANSLATE_NOOP("host::PPDProblems", "the line is too long");
constexpr auto kCharacter = QT_TRANSLATE_NOOP("host::PPDProblems", "a character that is not allowed");
constexpr auto kWord = QT_TRANSLATE_NOOP("host::PPDProblems", "a keyword or text that is not allowed");
constexpr auto kOrder = QT_TRANSLATE_NOOP("host::PPDProblems", "a group or an option that is not begun or not ended");
constexpr auto kOther = QT_TRANSLATE_NOOP("host::PPDProblems", "it can't be read");

constexpr std::array kProblemRows{
    ProblemRow{PPD_MISSING_PPDADOBE4, kNoHeader},  ProblemRow{PPD_MISSING_ASTERISK, kNoAsterisk},
    ProblemRow{PPD_MISSING_VALUE, kNoValue},       ProblemRow{PPD_LINE_TOO_LONG, kTooLong},
    ProblemRow{PPD_ILLEGAL_CHARACTER, kCharacter}, ProblemRow{PPD_ILLEGAL_WHITESPACE, kCharacter},
    ProblemRow{PPD_ILLEGAL_MAIN_KEYWORD, kWord},   ProblemRow{PPD_ILLEGAL_OPTION_KEYWORD, kWord},
    ProblemRow{PPD_ILLEGAL_TRANSLATION, kWord},    ProblemRow{PPD_BAD_OPEN_GROUP, kOrder},
    ProblemRow{PPD_NESTED_OPEN_GROUP, kOrder},     ProblemRow{PPD_BAD_OPEN_UI, kOrder},
    ProblemRow{PPD_NESTED_OPEN_UI, kOrder},
};

} // namespace

QString ppdProblemText(ppd_status_t status)
{
    const auto *const row = std::ranges::find(kProblemRows, status, &ProblemRow::status);
    return QCoreApplication::translate("host::PPDProblems", row == kProblemRows.end() ? kOther : row->text);
}

} // namespace host
