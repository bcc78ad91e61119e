// What of a PPD is shown to a person, and as what.
#pragma once

#include "CustomEntry.h"

#include <QString>
#include <QStringList>

#include <vector>

class PPDTexts;

struct ShownChoice
{
    QString keyword;
    QString title;
};

struct ShownOption
{
    enum class Appearance { menu, checkBox, list };

    QString keyword;
    QString title;
    QString heading; // of a group within the group, above its first option; else empty
    Appearance appearance = Appearance::menu;
    std::vector<ShownChoice> choices;   // of a check box: off, on
    std::unique_ptr<CustomEntry> entry; // null: nothing but the choices
};

struct ShownGroup
{
    QString name; // unlike every other group's of the PPD
    QString title;
    std::vector<ShownOption> options;
};

/// In the order of the file; what is installed comes last. Groups without an option to be shown are left out, and so
/// are options without a text or without anything to choose, and those that the dialog or the printing system takes
/// care of.
std::vector<ShownGroup> shownGroups(ppd_file_t &ppd, const PPDTexts &texts);
