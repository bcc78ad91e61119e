// What the bundle looks for in a PPD that is made for it. The library's record says what the panels will read, the
// statements say in which line it stands.
#pragma once

#include "PanelOptions.h"
#include "PaperRules.h"

#include "PDECheckInterface.h"

/// The bundle's answer to whoever asks for its checks.
const PDEChecks &bundleChecks();

namespace checks {

// Their names.
inline constexpr auto kHiddenFlag = "hidden-flag";
inline constexpr auto kOffFirst = "off-first";
inline constexpr auto kChoiceCount = "choice-count";
inline constexpr auto kChoiceOrder = "choice-order";
inline constexpr auto kFixedItems = "fixed-items";
inline constexpr auto kSizeType = "size-type";
inline constexpr auto kPaperName = "paper-name";
inline constexpr auto kFeedCustom = "feed-custom";
inline constexpr auto kCustomSize = "custom-size";
inline constexpr auto kOrigin = "origin";
inline constexpr auto kOriginUnused = "origin-unused";
inline constexpr auto kUnknownOption = "unknown-option";
inline constexpr auto kVersion = "version";
inline constexpr auto kNeverShown = "never-shown";

/// One PPD, and what was found in it.
class File
{
public:
    explicit File(const PDECheckedPPD &ppd)
        : m_ppd(ppd)
    {}

    ppd_file_t *ppd() const { return m_ppd.file; }
    std::span<const PDEStatement> statements() const { return m_ppd.statements; }
    const PDEPanels &panels() const { return m_ppd.panels; }

    /// Null when the PPD lacks it under exactly this keyword.
    const ppd_option_t *option(const char *keyword) const;
    std::vector<QByteArray> choices(const ppd_option_t &option) const;
    /// Whether it has any option of the panels: else it is some other printer's.
    bool isForPanels() const;

    /// The first statement of a keyword; null when there is none.
    const PDEStatement *first(QByteArrayView keyword) const;
    /// The line of the attribute, else of the option where it begins, else 1.
    int lineOf(const char *attribute, const char *option) const;
    int lineOfOption(const char *keyword) const { return lineOf(keyword, keyword); }
    int lineOfChoice(const char *keyword, QByteArrayView choice) const;

    void add(const char *check, int line, const QString &message, const char *option = "");
    /// Where an attribute stands again and says something else.
    void addIfContradicted(const char *check, const char *attribute, const char *option);
    std::vector<PDEFinding> take() { return std::move(m_findings); }

private:
    const PDECheckedPPD &m_ppd;
    std::vector<PDEFinding> m_findings;
};

// A function each, and what its name says.
void findHiddenFlags(File &file);
void findOffFirst(File &file);
void findChoiceCounts(File &file);
void findChoiceOrder(File &file);
void findFixedItems(File &file);
void findSizeTypes(File &file);
void findPaperNames(File &file);
void findFeedCustom(File &file);
void findCustomSizes(File &file);
void findOrigins(File &file);
void findUnusedOrigins(File &file);
void findUnknownOptions(File &file);
void findVersion(File &file);
void findNeverShown(File &file);

inline constexpr auto kSizeTypeOption = "QnPaperSizeType";

/// Where a control stands, as the PPD may say.
struct OriginRow
{
    const char *attribute;
    const char *option;
    const char *control;
    bool isSeen; // false: known, and not applied to a control that people see
};
std::span<const OriginRow> originRows();

} // namespace checks
