#include "ArrangedPages.h"

#include "Arranging.h"
#include "ConfinedProgram.h"

#include "Foundation/RegularFile.h"
#include "Foundation/Shadow.h"

#include <QFileInfo>

#include <limits>

namespace host {

using foundation::Or;
using foundation::Problem;

namespace {

constexpr qint64 kMebibyte = qint64{1024} * 1024;
constexpr qint64 kMemory = foundation::kHasShadow ? std::numeric_limits<qint64>::max() : 1024 * kMebibyte;
constexpr Allowance kAllowance{kMemory, 1024 * kMebibyte, 120, std::chrono::seconds(180)};

/// Beside the installed libraries, or in the build; empty where it is not.
QString arrangeProgram()
{
    const QString application = QCoreApplication::applicationDirPath();
    for (const char *folder : {"/" QN_HELPER_DIR "/", "/../lib/"})
        if (const QFileInfo program(application + folder + kArrangeProgram); program.isExecutable())
            return program.filePath();
    return {};
}

/// In the order of `ArrangeWord`.
QStringList wordsOf(const Sheet &sheet, Scaling scaling, const QString &ranges)
{
    QStringList words;
    for (const double length : {sheet.size.width, sheet.size.height, sheet.printable.left(), sheet.printable.top(),
                                sheet.printable.width(), sheet.printable.height()})
        words.append(QString::number(length, 'f', QLocale::FloatingPointShortest));
    return words << QString::number(sheet.turnsLeft ? 1 : 0) << nameOf(scaling) << ranges;
}

} // namespace

Problem ArrangedPages::problemOf(const QString &title, std::optional<int> status)
{
    if (status == kUnreadable)
        return {tr("%1: the document is damaged").arg(title)};
    if (status == kUnwritable)
        return {tr("%1: there is no room for its pages").arg(title)};
    return {tr("%1: the document takes too long, or too much memory, to be put on the paper").arg(title)};
}

Or<std::shared_ptr<Document>> ArrangedPages::of(const Document &document, const Sheet &sheet, Scaling scaling,
                                                const QString &ranges, const std::stop_token &stop)
{
    const QString program = arrangeProgram();
    if (program.isEmpty())
        return Problem{tr("%1: can't be put on the paper: %2 is missing (it is part of qnprint).")
                           .arg(document.title(), QString(kArrangeProgram))};
    auto file = foundation::openUnnamedFile();
    if (!file)
        return Problem{tr("%1: its pages can't be kept: %2").arg(document.title(), file.problem().sentence)};
    ConfinedProgram arranging(program, wordsOf(sheet, scaling, ranges),
                              {pathOfDescriptor(document.descriptor()), pathOfDescriptor((*file)->handle())},
                              kAllowance);
    const bool hasEnded = arranging.output(stop).has_value();
    const auto status = hasEnded ? arranging.status() : std::nullopt;
    if (status != kArranged)
        return problemOf(document.title(), status);
    return Document::made(document.title(), *std::move(file));
}

} // namespace host
