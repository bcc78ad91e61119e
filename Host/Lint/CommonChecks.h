// What can be wrong with any PPD, whatever printer it is for.
#pragma once

#include "Findings.h"
#include "Statements.h"

#include "PPD/PPDDocument.h"

namespace host {

/// The host's own checks, those included that other files of this room find.
std::vector<PDECheck> commonChecks();

namespace check {

// Their names.
inline constexpr auto kOpen = "open";
inline constexpr auto kConformance = "conformance";
inline constexpr auto kStructure = "structure";
inline constexpr auto kPageSize = "page-size";
inline constexpr auto kConstraint = "constraint";
inline constexpr auto kDefaultChoice = "default-choice";
inline constexpr auto kEmptyText = "empty-text";
inline constexpr auto kEncoding = "encoding";
inline constexpr auto kTranslation = "translation";
inline constexpr auto kExtension = "extension";
inline constexpr auto kNoBundle = "no-bundle";
inline constexpr auto kConflict = "conflict";
inline constexpr auto kUnchecked = "unchecked";

} // namespace check

/// What the text of a PPD says, and what the library reads of it.
struct CheckedText
{
    const PPDDocument &ppd;
    const StatementIndex &index;
};

/// Finds all that shows in the text alone.
void findInText(const CheckedText &text, Findings &findings);

// The kinds of it.
void findStructure(const CheckedText &text, Findings &findings);
void findPageSizes(const CheckedText &text, Findings &findings);
void findConstraints(const CheckedText &text, Findings &findings);
void findDefaultChoices(const CheckedText &text, Findings &findings);
void findEmptyTexts(const CheckedText &text, Findings &findings);
void findEncoding(const CheckedText &text, Findings &findings);
void findTranslations(const CheckedText &text, Findings &findings);

} // namespace host
