// The manual page.
#include "Manual.h"

#include "QnVersion.h"
#include "Usage.h"

#include <QStringList>

#include <utility>

namespace host {

namespace {

/// Text as it is to be read and copied: roff has better ideas of dashes, quotation marks and the like.
QString roff(QString text)
{
    static constexpr std::array<std::pair<char, const char *>, 6> kEscapes{
        {{'\\', "\\e"}, {'-', "\\-"}, {'\'', "\\(aq"}, {'`', "\\(ga"}, {'^', "\\(ha"}, {'~', "\\(ti"}}};
    for (const auto &[letter, escape] : kEscapes)
        text.replace(QLatin1Char(letter), QLatin1String(escape));
    return text.startsWith('.') ? "\\&" + text : text;
}

QString bold(const QString &text) { return "\\fB" + roff(text) + "\\fP"; }
QString italic(const QString &text) { return "\\fI" + roff(text) + "\\fP"; }

/// Both, whichever there are.
QString sentences(const char *first, const char *more) { return QStringList({first, more}).join(' ').trimmed(); }

class Page
{
public:
    void section(const char *title) { line(QStringLiteral(".SH %1").arg(title)); }
    void paragraph(const QString &text) { line(roff(text)); }
    void entry(const QString &tag, const QString &text) { line(".TP\n" + tag + '\n' + roff(text)); }
    template <class Rows>
    void section(const char *title, const Rows &rows)
    {
        section(title);
        for (const TermRow &row : rows)
            entry(bold(row.term), row.description);
    }
    void line(const QString &text) { m_text += text + '\n'; }
    QByteArray text() const { return m_text.toUtf8(); }

private:
    QString m_text;
};

void addSynopsis(Page &page)
{
    page.section("SYNOPSIS");
    page.line(QStringLiteral("%1 [%2 ...] [%3 ...]").arg(bold("qnprint"), italic("option"), italic("file")));
    for (const FaceRow &row : kFaceRows)
        page.line(QStringLiteral(".br\n%1 %2").arg(bold("qnprint"), roff(row.synopsis)));
}

void addOptions(Page &page)
{
    page.section("OPTIONS");
    page.entry(italic("file"), kFileDescription);
    for (const OptionRow &row : kOptionRows) {
        QStringList names;
        if (row.letter)
            names.append(bold(QStringLiteral("-%1").arg(row.letter)));
        if (row.word)
            names.append(bold(QStringLiteral("--%1").arg(row.word)));
        page.entry((names.join(", ") + (row.value ? ' ' + italic(row.value) : QString())),
                   sentences(row.description, row.more));
    }
}

void addOtherUses(Page &page)
{
    page.section("OTHER USES");
    for (const FaceRow &row : kFaceRows)
        page.entry(bold(QStringLiteral("qnprint %1").arg(row.word)), sentences(row.description, row.more));
}

void addExitStatus(Page &page)
{
    page.section("EXIT STATUS");
    for (const ExitRow &row : kExitRows)
        page.entry(bold(QString::number(row.status)), row.description);
}

} // namespace

QByteArray manualPage()
{
    Page page;
    page.line(".TH QNPRINT 1 \"\" \"qnprint " QN_VERSION "\"");
    page.section("NAME");
    page.line("qnprint \\- " + roff(kPurpose));
    addSynopsis(page);
    page.section("DESCRIPTION");
    page.paragraph(kDescription);
    addOptions(page);
    addOtherUses(page);
    page.section("STANDARD OUTPUT");
    page.paragraph(kOutputDescription);
    for (const TermRow &row : kOutputRows)
        page.entry(bold(row.term), row.description);
    addExitStatus(page);
    page.section("ENVIRONMENT", kEnvironmentRows);
    page.section("FILES", kFileRows);
    page.section("EXAMPLES", kExampleRows);
    page.section("SEE ALSO");
    page.line("\\fBlp\\fP(1), \\fBlpoptions\\fP(1), \\fBlpstat\\fP(1)");
    return page.text();
}

} // namespace host
