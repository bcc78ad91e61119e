// One choice of a PPD option as an object: its text for people, its keyword for the driver.
#pragma once

#include "Foundation/Text.h"
#include "Printing/ppd_api.h"

#include <QString>

#include <optional>
#include <vector>

/// Borrows the choice, so the PPD must outlive it. Identity counts: a selection is an element of a choice list.
class PDEChoice
{
public:
    static PDEChoice choiceWithChoice(ppd_choice_t *choice) { return PDEChoice(choice); }

    /// The text, decoded on first use and kept; nil when it is not valid in `ppdEncoding`, and then tried again.
    const std::optional<QString> &userTitle() const;
    /// The keyword; nil when it is not ASCII.
    const std::optional<QString> &ppdTitle() const;
    ppd_choice_t *choice() const { return mChoice; }

    /// Whether the PPD declares this choice as the default, whichever is marked.
    bool isDefaultChoice() const;

    /// For debugging.
    QString description() const;

private:
    explicit PDEChoice(ppd_choice_t *choice)
        : mChoice(choice)
    {}

    mutable std::optional<QString> mUserTitle;
    mutable std::optional<QString> mPPDTitle;
    ppd_choice_t *mChoice;
};

/// The encoding in which choice texts are decoded.
inline constexpr foundation::StringEncoding ppdEncoding = foundation::StringEncoding::utf8;

/// An option's choices in the PPD's order. Never changed once made: selections point into it.
using ChoiceList = std::vector<PDEChoice>;
