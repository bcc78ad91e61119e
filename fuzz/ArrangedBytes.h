// What `qnprint-arrange` does with bytes, for its fuzz target.
#pragma once

#include <string>

namespace fuzzing {

struct Arrangement
{
    double width = 0; // of the sheet, in points
    double height = 0;
    bool turnsLeft = false;
    const char *scaling = "";
    bool isFirstPageOnly = false;
};

/// The bytes of a PDF; empty when the input is none that can be read. Throws what `qnprint-arrange` takes for that.
std::string arranged(const std::string &bytes, const Arrangement &how);

/// How many pages of the sheet's size a PDF has; -1 when one has another.
int countOfSheets(const std::string &bytes, const Arrangement &how);

} // namespace fuzzing
