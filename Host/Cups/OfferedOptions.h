// What a queue without a PPD lets a job choose, as the server says, and the same as a PPD: whoever shows the options of
// a PPD shows these as well.
#pragma once

#include "PPD/OptionValues.h"

#include <QByteArray>
#include <QStringList>

#include <vector>

namespace host {

/// Words and choices as a job has them.
struct OfferedOption
{
    QString word;
    QStringList choices;
    QString standard; // what the printer does by itself; empty: the server does not say
};

using OfferedOptions = std::vector<OfferedOption>;

/// What a server is asked about.
QStringList wordsToOffer();

/// A PPD of the words that there are texts for; empty when there is nothing to choose. What can't stand in a PPD is
/// left out. Its keywords are no words of servers, which nobody takes for options of a driver.
QByteArray ppdOf(const OfferedOptions &offers);

/// What such a PPD calls a word of a job.
QString offeredKeyword(const QString &word);
/// Options of a job as choices of such a PPD, whether it has them or not.
OptionValues asOffered(const OptionValues &options);
/// What marks in such a PPD mean to a job.
OptionValues asSaid(const OptionValues &marks);

} // namespace host
