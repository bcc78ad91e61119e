// What the printing system's own program says of a PPD.
#include "Conformance.h"

#include "CommonChecks.h"

#include "Pages/ConfinedProgram.h"

#include "Foundation/RegularFile.h"

#include <QRegularExpression>
#include <QStandardPaths>

namespace host {

namespace {

constexpr auto kProgram = "cupstestppd";
constexpr qint64 kMebibyte = qint64{1024} * 1024;
/// A PPD as printers have them takes some hundredths of a second.
constexpr Allowance kAllowance{200 * kMebibyte, 4 * kMebibyte, 1, std::chrono::seconds(10)};

/// In English, from standard input, and without a look at files that need not be on this machine.
const QStringList kArguments{"LC_ALL=C", kProgram, "-I", "filters", "-I", "profiles", "-v", "-"};

/// "on line 12"; else where a keyword of the sentence stands, with the choice behind it before one without.
int lineOf(const QString &sentence, const StatementIndex &index)
{
    static const QRegularExpression told("\\bon line (\\d+)");
    if (const auto match = told.match(sentence); match.hasMatch())
        return match.captured(1).toInt();
    static const QRegularExpression between("[^A-Za-z0-9_.-]+");
    QByteArrayList words;
    for (const QString &word : sentence.split(between, Qt::SkipEmptyParts))
        words.append(word.toUtf8());
    for (qsizetype i = 0; i + 1 < words.size(); ++i)
        if (const PDEStatement *const choice = index.first(words[i], words[i + 1]))
            return choice->line;
    for (const QByteArray &word : words)
        if (const PDEStatement *const statement = index.first(word))
            return statement->line;
    return 1;
}

void addFailures(const QByteArray &output, const StatementIndex &index, Findings &findings)
{
    static constexpr QByteArrayView kFailure("**FAIL**");
    for (const QByteArray &line : output.split('\n'))
        if (const QByteArray words = line.trimmed(); words.startsWith(kFailure)) {
            QString sentence = QString::fromUtf8(words.mid(kFailure.size())).simplified();
            sentence.chop(sentence.endsWith('.') ? 1 : 0);
            findings.add(check::kConformance, lineOf(sentence, index),
                         QString("%1: %2; the CUPS server may refuse the PPD").arg(kProgram, sentence));
        }
}

} // namespace

Conformance::Conformance(const QByteArray &content)
{
    const QString environment = QStandardPaths::findExecutable("env");
    auto file = foundation::openUnnamedFile();
    if (QStandardPaths::findExecutable(kProgram).isEmpty() || environment.isEmpty() || !file ||
        (*file)->write(content) != content.size() || !(*file)->flush())
        return;
    m_file = *std::move(file);
    m_program = std::make_unique<ConfinedProgram>(environment, kArguments, Streams{pathOfDescriptor(m_file->handle())},
                                                  kAllowance);
}

Conformance::~Conformance() = default;

void Conformance::find(const StatementIndex &index, Findings &findings)
{
    const auto output = m_program ? m_program->output({}) : std::nullopt;
    if (output && m_program->status())
        return addFailures(*output, index, findings);
    findings.add(check::kUnchecked, 1,
                 m_program ? QString("%1 takes too long: conformance is not checked").arg(kProgram)
                           : QString("%1 is not installed: conformance is not checked").arg(kProgram));
}

} // namespace host
