// The options of the panels as tables: keywords, refresh masks, texts, summary rows. A new option is a new row.
#pragma once

#include "BasePDE.h"

#include <array>
#include <span>

enum class OptionId {
    density,
    speed,
    media,
    formFeedMode,
    paperFeed,
    perforated,
    halftone,
    reversal,
    rollPrint,
    mirror,
    biDiPrint,
};

/// The panels that name an option among the supported ones. The basic panel names all.
enum class ClaimedBy { basic, both };

struct OptionRow
{
    OptionId id;
    const char *keyword;
    PDEItemFlags mask; // flags under which the marked choice is read again
    ClaimedBy claimedBy;
};

/// In the order in which the marked choices are read. Speed deliberately goes with media and roll printer case.
inline constexpr std::array kOptionRows{
    // clang-format off
    OptionRow{OptionId::density,      "QnDensity",         kPDEItem_Density,                    ClaimedBy::both},
    OptionRow{OptionId::speed,        "QnSpeed",           kPDEItem_Media | kPDEItem_RollPrint, ClaimedBy::both},
    OptionRow{OptionId::media,        "QnMedia",           kPDEItem_Media,                      ClaimedBy::basic},
    OptionRow{OptionId::formFeedMode, "QnFormFeedMode",    kPDEItem_FormFeedMode,               ClaimedBy::basic},
    OptionRow{OptionId::paperFeed,    "QnPaperFeed",       kPDEItem_PaperFeed,                  ClaimedBy::basic},
    OptionRow{OptionId::perforated,   "QnPerforated",      kPDEItem_Perforated,                 ClaimedBy::basic}, // though both save it
    OptionRow{OptionId::halftone,     "QnHalftonePattern", kPDEItem_Halftone,                   ClaimedBy::both},
    OptionRow{OptionId::reversal,     "QnReversal",        kPDEItem_Reversal,                   ClaimedBy::both},
    OptionRow{OptionId::rollPrint,    "QnRollPrinterCase", kPDEItem_RollPrint,                  ClaimedBy::basic},
    OptionRow{OptionId::mirror,       "QnMirror",          kPDEItem_Mirror,                     ClaimedBy::both},
    OptionRow{OptionId::biDiPrint,    "QnBiDiPrint",       kPDEItem_BiDiPrint,                  ClaimedBy::both},
    // clang-format on
};

constexpr const OptionRow &optionRow(OptionId id) { return kOptionRows[static_cast<std::size_t>(id)]; }
static_assert(std::ranges::all_of(kOptionRows, [](const OptionRow &row) { return &optionRow(row.id) == &row; }));

using Keys = std::span<const char *const>;

/// Texts of the fixed items, which stand in for choices without a text.
inline constexpr std::array kDensityKeys{"RS_Density_home", "RS_Density_0", "RS_Density_1", "RS_Density_2",
                                         "RS_Density_3",    "RS_Density_4", "RS_Density_5", "RS_Density_6",
                                         "RS_Density_7",    "RS_Density_8", "RS_Density_9", "RS_Density_10"};
inline constexpr std::array kSpeedKeys{"RS_Speed_home", "RS_Speed_0", "RS_Speed_1", "RS_Speed_2", "RS_Speed_3"};
inline constexpr std::array kMediaKeys{"RS_Media_Thermal", "RS_Media_ThermalCopy"};
inline constexpr std::array kFormFeedModeKeys{"RS_FormFeedMode_NO", "RS_FormFeedMode_FIX", "RS_FormFeedMode_END",
                                              "RS_FormFeedMode_RET"};
inline constexpr std::array kRollPrintKeys{"HC_STitle_RollPrint_DEFAULT", "HC_STitle_RollPrint_OFF",
                                           "HC_STitle_RollPrint_ON", "HC_STitle_RollPrint_ONWithoutAntiCurl"};
inline constexpr std::array kPerforatedKeys{"RS_Perforated_OFF", "RS_Perforated_ON"};
inline constexpr std::array kHalftoneKeys{"HC_Binary", "HC_Dither", "HC_ErrorDiffusion"};

struct PopUpTexts
{
    OptionId id;
    const char *hiddenKey;
    const char *titleKey; // when the PPD gives the option no title
    Keys itemKeys;        // when the PPD gives a choice no title
};

inline constexpr std::array kPopUpTexts{
    PopUpTexts{OptionId::density, "QnDensityObjHidden", "RS_Density", kDensityKeys},
    PopUpTexts{OptionId::speed, "QnSpeedObjHidden", "RS_Speed", kSpeedKeys},
    PopUpTexts{OptionId::media, "QnMediaObjHidden", "RS_Media", kMediaKeys},
    PopUpTexts{OptionId::formFeedMode, "QnFormFeedModeObjHidden", "RS_FormFeedMode", kFormFeedModeKeys},
    PopUpTexts{OptionId::rollPrint, "QnRollPrinterCaseHidden", "HC_STitle_RollPrint", kRollPrintKeys}, // no "Obj" here
    PopUpTexts{OptionId::perforated, "QnPerforatedObjHidden", "RS_Perforated", kPerforatedKeys},
};

constexpr const PopUpTexts &popUpTexts(OptionId id) { return *std::ranges::find(kPopUpTexts, id, &PopUpTexts::id); }

/// The options whose pop-ups and check boxes a refresh brings in line with the selections, in the order of doing so.
inline constexpr std::array kRefreshedPopUps{OptionId::density,      OptionId::speed,     OptionId::media,
                                             OptionId::formFeedMode, OptionId::rollPrint, OptionId::paperFeed};
inline constexpr std::array kRefreshedCheckBoxes{OptionId::reversal, OptionId::perforated, OptionId::mirror,
                                                 OptionId::biDiPrint};

/// When an option may appear in a summary, besides having a selection.
enum class SummaryIf { always, paperFeedEnabled, mirrorOffered, biDiPrintOffered };

/// What names the value of a listed index: the choice's own text with the key as its stand-in, or the key alone.
enum class SummaryValue { choiceText, fixedKeys };

struct SummaryRow
{
    OptionId id;
    SummaryIf condition;
    const char *titleKey; // when the PPD gives the option no title
    SummaryValue value;
    Keys keys;
};

namespace rows {
inline constexpr std::array kPaperFeedSummary{"RS_PaperFeed_NO", "RS_PaperFeed_1/2", "RS_PaperFeed_1",
                                              "RS_PaperFeed_1-1/2", "RS_PaperFeed_2"};
inline constexpr std::array kPerforatedSummary{"RS_Perforated_ON", "RS_Perforated_OFF"}; // on first, on purpose
inline constexpr std::array kNoYes{"RS_STitle_No", "RS_STitle_Yes"};
using enum SummaryIf;
using enum SummaryValue;
} // namespace rows

inline constexpr std::array kSummaryRows{
    // clang-format off
    SummaryRow{OptionId::density,      rows::always,           "RS_STitle_Density",      rows::choiceText, kDensityKeys},
    SummaryRow{OptionId::speed,        rows::always,           "RS_Speed",               rows::choiceText, kSpeedKeys},
    SummaryRow{OptionId::media,        rows::always,           "RS_STitle_Media",        rows::choiceText, kMediaKeys},
    SummaryRow{OptionId::formFeedMode, rows::always,           "RS_STitle_FormFeedMode", rows::choiceText, kFormFeedModeKeys},
    SummaryRow{OptionId::paperFeed,    rows::paperFeedEnabled, "RS_STitle_PaperFeed",    rows::choiceText, rows::kPaperFeedSummary},
    SummaryRow{OptionId::perforated,   rows::always,           "RS_STitle_Perforated",   rows::choiceText, rows::kPerforatedSummary},
    SummaryRow{OptionId::halftone,     rows::always,           "HC_STitle_Halftone",     rows::fixedKeys,  kHalftoneKeys},
    SummaryRow{OptionId::rollPrint,    rows::always,           "HC_STitle_RollPrint",    rows::fixedKeys,  rows::kNoYes},
    SummaryRow{OptionId::reversal,     rows::always,           "HC_STitle_Reversal",     rows::fixedKeys,  rows::kNoYes},
    SummaryRow{OptionId::mirror,       rows::mirrorOffered,    "HC_STitle_Mirror",       rows::fixedKeys,  rows::kNoYes},
    SummaryRow{OptionId::biDiPrint,    rows::biDiPrintOffered, "HC_STitle_BiDiPrint",    rows::fixedKeys,  rows::kNoYes},
    // clang-format on
};
