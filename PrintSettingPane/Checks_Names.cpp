// Checks of names that nobody reads.
#include "Checks.h"

#include <QSet>

#include <algorithm>
#include <array>

namespace checks {

namespace {

constexpr auto kPrefix = "Qn";

/// What may stand before the keyword of an option.
constexpr std::array kBefore{"ParamCustom", "Custom", "Default"};

QByteArrayList knownNames()
{
    QByteArrayList names{kSizeTypeOption, "QnDensityUS", "QnSpeedUS"};
    for (const OptionRow &row : kOptionRows)
        names.append(row.keyword);
    for (const PopUpTexts &row : kPopUpTexts)
        names.append(row.hiddenKey);
    names += {"QnPaperFeedObjHidden", "QnReversalObjHidden", "QnMirrorObjHidden", "QnBiDiPrintObjHidden"};
    names.append("QnRollPrinterCaseObjHidden"); // has a check of its own
    for (const OriginRow &row : originRows())
        names.append(row.attribute);
    return names;
}

/// "QnDensity" of "DefaultQnDensity" and of "de.QnDensity".
QByteArrayView bareName(QByteArrayView keyword)
{
    for (const char *before : kBefore)
        if (keyword.startsWith(before))
            return keyword.sliced(static_cast<qsizetype>(qstrlen(before)));
    const qsizetype dot = keyword.toByteArray().indexOf('.');
    return dot > 0 ? keyword.sliced(dot + 1) : keyword;
}

/// The known name that is nearest; empty when none is within so many letters.
QByteArray nearest(QByteArrayView name, const QByteArrayList &known, qsizetype most)
{
    QByteArray found;
    qsizetype least = most + 1;
    const QString wanted = QString::fromUtf8(name).toLower();
    for (const QByteArray &each : known)
        if (qAbs(each.size() - name.size()) < least)
            if (const auto letters = foundation::editDistance(wanted, QString::fromLatin1(each).toLower());
                letters < least) {
                found = each;
                least = letters;
            }
    return found;
}

/// How many letters may be wrong in a name that is meant for a panel: without the prefix it may well be another word.
qsizetype mostWrongLetters(const QByteArray &name, bool isForPanels)
{
    if (name.startsWith(kPrefix))
        return 2;
    return isForPanels ? 1 : -1;
}

/// The keyword that a statement is about: of an option that it begins, else its own.
QByteArrayView nameIn(const PDEStatement &statement)
{
    if (statement.keyword != "OpenUI")
        return bareName(statement.keyword);
    const QByteArrayView option = statement.option.isEmpty() ? statement.value : statement.option;
    return option.startsWith('*') ? option.sliced(1) : option;
}

} // namespace

void findUnknownOptions(File &file)
{
    constexpr int kMostNames = 1000; // the looking for near ones takes its time
    const QByteArrayList known = knownNames();
    const QSet<QByteArray> knownSet(known.cbegin(), known.cend());
    const bool isForPanels = file.isForPanels();
    QSet<QByteArray> seen;
    for (const PDEStatement &each : file.statements()) {
        const QByteArray name = nameIn(each).toByteArray();
        if (name.isEmpty() || name.size() > PPD_MAX_NAME || knownSet.contains(name) || seen.contains(name))
            continue;
        if (seen.size() == kMostNames)
            return;
        seen.insert(name);
        const QByteArray near = nearest(name, known, mostWrongLetters(name, isForPanels));
        if (!near.isEmpty())
            file.add(
                kUnknownOption, each.line,
                QString("no panel reads %1; is %2 meant?").arg(QString::fromUtf8(name), QString::fromLatin1(near)));
        else if (name.startsWith(kPrefix))
            file.add(kUnknownOption, each.line,
                     QString("no panel reads %1: %2")
                         .arg(QString::fromUtf8(name), ppdFindOption(file.ppd(), name.constData())
                                                           ? "nobody can choose it"
                                                           : "it does nothing"));
    }
}

} // namespace checks
