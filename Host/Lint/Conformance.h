// What the printing system's own program says of a PPD.
#pragma once

#include "Findings.h"
#include "Statements.h"

#include <memory>

class QFile;

namespace host {

class ConfinedProgram;

/// Runs beside us while the rest is looked at.
class Conformance
{
public:
    explicit Conformance(const QByteArray &content);
    ~Conformance();
    Conformance(const Conformance &) = delete;
    Conformance &operator=(const Conformance &) = delete;

    /// Waits for its end.
    void find(const StatementIndex &index, Findings &findings);

private:
    std::unique_ptr<QFile> m_file; // what it reads
    std::unique_ptr<ConfinedProgram> m_program;
};

} // namespace host
