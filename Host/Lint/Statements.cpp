// The text of a PPD taken apart.
#include "Statements.h"

namespace host {

namespace {

constexpr std::size_t kMostStatements = 100'000; // twice as many as the library is given

bool endsLine(char each) { return each == '\n' || each == '\r'; }
bool isBlank(char each) { return each == ' ' || each == '\t'; }

/// Goes forward only, each byte once.
class Scanner
{
public:
    explicit Scanner(QByteArrayView content)
        : m_content(content)
    {}

    bool isAtEnd() const { return m_at == m_content.size(); }
    bool isAt(char each) const { return !isAtEnd() && m_content[m_at] == each; }
    int line() const { return m_line; }

    void step()
    {
        const char each = m_content[m_at++];
        if (endsLine(each) && !(each == '\r' && isAt('\n')))
            ++m_line;
    }
    /// As it stands, up to what ends it.
    template <class Predicate>
    QByteArrayView upTo(Predicate ends)
    {
        const qsizetype from = m_at;
        while (!isAtEnd() && !ends(m_content[m_at]))
            step();
        return m_content.sliced(from, m_at - from);
    }
    void skipBlanks()
    {
        upTo([](char each) { return !isBlank(each); });
    }
    void skipLine()
    {
        upTo(endsLine);
        while (!isAtEnd() && endsLine(m_content[m_at]))
            step();
    }

private:
    QByteArrayView m_content;
    qsizetype m_at = 0;
    int m_line = 1;
};

/// Behind the colon: what stands in quotation marks, over as many lines as it takes, or the rest of the line.
QByteArrayView readValue(Scanner &scanner)
{
    scanner.skipBlanks();
    if (!scanner.isAt('"'))
        return scanner.upTo(endsLine).trimmed();
    scanner.step();
    return scanner.upTo([](char each) { return each == '"'; });
}

/// Behind the asterisk.
PDEStatement readStatement(Scanner &scanner)
{
    PDEStatement statement{.line = scanner.line()};
    statement.keyword = scanner.upTo([](char each) { return isBlank(each) || each == ':' || endsLine(each); });
    scanner.skipBlanks();
    const auto endsOption = [](char each) { return each == '/' || each == ':' || endsLine(each); };
    if (const QByteArrayView option = scanner.upTo(endsOption).trimmed(); !option.isEmpty())
        statement.option = option;
    if (scanner.isAt('/')) {
        scanner.step();
        statement.text = scanner.upTo([](char each) { return each == ':' || endsLine(each); }).trimmed();
    }
    if (scanner.isAt(':')) {
        scanner.step();
        statement.value = readValue(scanner);
    }
    return statement;
}

QByteArrayView withoutAsterisk(QByteArrayView keyword) { return keyword.startsWith('*') ? keyword.sliced(1) : keyword; }

} // namespace

QByteArrayView openedBy(const PDEStatement &statement)
{
    if (statement.keyword != "OpenUI" && statement.keyword != "JCLOpenUI")
        return {};
    return withoutAsterisk(statement.option.isEmpty() ? statement.value : statement.option);
}

QByteArrayView closedBy(const PDEStatement &statement)
{
    if (statement.keyword != "CloseUI" && statement.keyword != "JCLCloseUI")
        return {};
    return withoutAsterisk(statement.option.isEmpty() ? statement.value : statement.option);
}

Statements statementsOf(const QByteArray &content)
{
    Statements result;
    for (Scanner scanner(content); !scanner.isAtEnd(); scanner.skipLine()) {
        if (!scanner.isAt('*'))
            continue;
        scanner.step();
        if (scanner.isAt('%'))
            continue; // a comment
        if (result.all.size() == kMostStatements) {
            result.isWhole = false;
            break;
        }
        result.all.push_back(readStatement(scanner));
    }
    return result;
}

StatementIndex::StatementIndex(std::span<const PDEStatement> statements)
    : m_all(statements)
{
    for (const PDEStatement &each : statements) {
        m_byKeyword[each.keyword].push_back(&each);
        if (auto &first = m_byOption[{each.keyword, each.option}]; !first)
            first = &each;
        if (const QByteArrayView option = openedBy(each); !option.isEmpty() && !m_optionLines.contains(option))
            m_optionLines.insert(option, each.line);
    }
}

const std::vector<const PDEStatement *> &StatementIndex::of(QByteArrayView keyword) const
{
    static const std::vector<const PDEStatement *> kNone;
    const auto found = m_byKeyword.constFind(keyword);
    return found == m_byKeyword.cend() ? kNone : *found;
}

const PDEStatement *StatementIndex::first(QByteArrayView keyword) const
{
    const auto &all = of(keyword);
    return all.empty() ? nullptr : all.front();
}

const PDEStatement *StatementIndex::first(QByteArrayView keyword, QByteArrayView option) const
{
    return m_byOption.value({keyword, option});
}

int StatementIndex::lineOfOption(QByteArrayView keyword) const { return m_optionLines.value(keyword, 1); }

} // namespace host
