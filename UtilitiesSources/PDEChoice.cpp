// Choices of PPD options.
#include "PDEChoice.h"

#include "Foundation/SystemLog.h"

#include <array>
#include <cstring>

using foundation::StringEncoding;
using foundation::stringFromBytes;

const std::optional<QString> &PDEChoice::userTitle() const
{
    if (!mUserTitle)
        mUserTitle = stringFromBytes(mChoice->text, ppdEncoding);
    return mUserTitle;
}

const std::optional<QString> &PDEChoice::ppdTitle() const
{
    if (!mPPDTitle)
        mPPDTitle = stringFromBytes(mChoice->choice, StringEncoding::ascii);
    return mPPDTitle;
}

bool PDEChoice::isDefaultChoice() const
{
    return std::strncmp(mChoice->choice, mChoice->option->defchoice, PPD_MAX_NAME) == 0;
}

QString PDEChoice::description() const
{
    const ppd_option_t &option = *mChoice->option;
    const auto text = [](const std::optional<QString> &title) { return title.value_or("(null)"); };
    const std::array<foundation::LogArgument, 7> arguments{
        "PDEChoice",       static_cast<const void *>(this), text(userTitle()),
        text(ppdTitle()),  mChoice->marked ? "YES" : "NO",  static_cast<int>(mChoice - option.choices) + 1,
        option.num_choices};
    return foundation::formattedString(R"(<%@ %p userTitle:"%@" ppdTitle:"%@" marked:%s choice:%i of %i>)", arguments);
}
