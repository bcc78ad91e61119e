// Any bytes as a PPD that is looked over: what is found can be shown in a line each, and stands in the file.
#include "Fuzzing.h"

#include "Lint/LintReport.h"
#include "Lint/Statements.h"

#include <algorithm>

namespace {

/// Each part lies within the content, and lines only grow.
void lookAtStatements(const QByteArray &content)
{
    const host::Statements statements = host::statementsOf(content);
    const host::StatementIndex index(statements.all);
    int line = 1;
    for (const PDEStatement &each : statements.all) {
        fuzzing::promise(each.line >= line && index.first(each.keyword, each.option));
        line = each.line;
        for (const QByteArrayView part : {each.keyword, each.option, each.text, each.value})
            fuzzing::promise(part.isNull() || (part.data() >= content.constData() &&
                                               part.data() + part.size() <= content.constData() + content.size()));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    fuzzing::beginRun();
    qputenv("PATH", "/nowhere"); // no program is started
    const QByteArray content = fuzzing::bytesOf(data, size);
    const QString path = fuzzing::pathOf("any.ppd");
    fuzzing::write(path, content);
    lookAtStatements(content);
    const auto linted = host::lint(path, {});
    fuzzing::promise(static_cast<bool>(linted));
    for (const PDEFinding &each : linted->findings)
        fuzzing::promise(each.line >= 1 && std::ranges::count(linted->checks, each.check, &PDECheck::name) == 1);
    const QString lines = host::asLines(path, *linted);
    fuzzing::promise(lines.count('\n') == std::ssize(linted->findings));
    fuzzing::promise(host::asJson(path, *linted).count('\n') == std::ssize(linted->findings));
    return 0;
}
