// Completions of three shells. Names of queues come from a server, and may be anything: they are read as lines, and
// quoted where the shell does not do so itself.
#include "Manual.h"

#include "Usage.h"

#include <QStringList>

namespace host {

namespace {

/// "-d", "--destination".
QStringList wordsOf(const OptionRow &row)
{
    QStringList words;
    if (row.letter)
        words.append(QStringLiteral("-%1").arg(row.letter));
    if (row.word)
        words.append(QStringLiteral("--%1").arg(row.word));
    return words;
}

QStringList allWords()
{
    QStringList words;
    for (const OptionRow &row : kOptionRows)
        words += wordsOf(row);
    return words;
}

/// Those with a value that is completed by something.
QStringList wordsWith(Completion completion)
{
    QStringList words;
    for (const OptionRow &row : kOptionRows)
        if (row.value && row.completion == completion)
            words += wordsOf(row);
    return words;
}

QStringList faceWords()
{
    QStringList words;
    for (const FaceRow &row : kFaceRows)
        words.append(row.word);
    return words;
}

// What differs by the tables stands between percent signs.

constexpr auto kBash = R"sh(# Completion of qnprint for bash.

_qnprint_queues()
{
    local queue quoted
    while IFS= read -r queue; do
        printf -v quoted %q "$queue"
        [[ $quoted == "$1"* ]] && COMPREPLY+=("$quoted")
    done < <(lpstat -e 2>/dev/null)
}

_qnprint()
{
    # "=" and ":" come as words of their own: what stands together is one.
    local words=() each glue= IFS=$' \t\n'
    for each in "${COMP_WORDS[@]:0:COMP_CWORD + 1}"; do
        if [[ $each == [=:]* ]]; then
            words[-1]+=$each glue=yes
        elif [[ $glue && $each ]]; then
            words[-1]+=$each glue=
        else
            words+=("$each") glue=
        fi
    done
    local word=${words[-1]} before=${words[-2]}
    if [[ $word == --*=* ]]; then
        before=${word%%=*} word=${word#*=}
    fi
    COMPREPLY=()
    if [[ " ${words[*]:1:${#words[@]} - 2} " == *" -- "* ]]; then
        compopt -o default
        return
    fi
    case $before in
        %queue%)
            _qnprint_queues "$word"
            COMPREPLY=("${COMPREPLY[@]#"${word%"${word##*:}"}"}") # only what follows ":" is replaced
            ;;
        %ppd%)
            compopt -o filenames
            mapfile -t COMPREPLY < <(compgen -f -X '!*.ppd' -- "$word"; compgen -d -- "$word")
            ;;
        %folder%)
            compopt -o filenames
            mapfile -t COMPREPLY < <(compgen -d -- "$word")
            ;;
        %file%)
            compopt -o filenames
            mapfile -t COMPREPLY < <(compgen -f -- "$word")
            ;;
        %nothing%) ;;
        *)
            if [[ $word == -* ]]; then
                mapfile -t COMPREPLY < <(compgen -W '%options%' -- "$word")
            else
                compopt -o default
                [[ ${#words[@]} == 2 ]] && mapfile -t COMPREPLY < <(compgen -W '%faces%' -- "$word")
            fi
            ;;
    esac
}

complete -F _qnprint qnprint
)sh";

constexpr auto kZsh = R"sh(#compdef qnprint
# Completion of qnprint for zsh.

_qnprint_queues()
{
    local -a queues
    queues=(${(f)"$(lpstat -e 2>/dev/null)"})
    compadd "$@" -a queues
}

_qnprint_documents()
{
    local -a uses
    uses=(
%faces%
    )
    (( CURRENT == 2 )) && _describe 'other use' uses
    _files
}

_arguments -s -S \
%options%
    '*:document:_qnprint_documents'
)sh";

constexpr auto kFish = R"sh(# Completion of qnprint for fish.

function __qnprint_ppd_files
    complete -C "__qnprint_no_command "(commandline -ct) | string match -r '^.*(?:/|\.ppd)$'
end

%options%
%faces%
)sh";

// --- bash
// -------------------------------------------------------------------------------------------------------------

QString bashText()
{
    QString text = kBash;
    const auto pattern = [](Completion completion) { return wordsWith(completion).join(" | "); };
    text.replace("%queue%", pattern(Completion::queue));
    text.replace("%ppd%", pattern(Completion::ppdFile));
    text.replace("%folder%", pattern(Completion::folder));
    text.replace("%file%", pattern(Completion::file));
    text.replace("%nothing%", pattern(Completion::nothing));
    text.replace("%options%", allWords().join(' '));
    return text.replace("%faces%", faceWords().join(' '));
}

// --- zsh
// --------------------------------------------------------------------------------------------------------------

QString inSingleQuotes(QString text) { return '\'' + text.replace('\'', "'\\''") + '\''; }

/// A description, in which brackets and colons would mean more.
QString zshDescription(QString text)
{
    for (const char *special : {"\\", "[", "]", ":"})
        text.replace(special, QStringLiteral("\\") + special);
    return text;
}

QString zshAction(Completion completion)
{
    switch (completion) {
    case Completion::queue: return "_qnprint_queues";
    case Completion::ppdFile: return "_files -g \"*.ppd\"";
    case Completion::folder: return "_files -/";
    case Completion::file: return "_files";
    case Completion::nothing: break;
    }
    return " ";
}

/// '(-d --destination)'{-d+,--destination=}'[...]:queue:_qnprint_queues'
QString zshOption(const OptionRow &row)
{
    QStringList words = wordsOf(row);
    const QString others = row.isRepeated ? "*" : '(' + words.join(' ') + ')';
    if (row.value)
        for (QString &word : words)
            word += word.startsWith("--") ? '=' : '+';
    QString meaning = '[' + zshDescription(row.description) + ']';
    if (row.value)
        meaning += ':' + zshDescription(row.value) + ':' + zshAction(row.completion);
    const QString names = words.size() > 1 ? '{' + words.join(',') + '}' : words.first();
    return "    " + inSingleQuotes(others) + names + inSingleQuotes(meaning) + " \\";
}

QString zshText()
{
    QStringList options;
    for (const OptionRow &row : kOptionRows)
        options.append(zshOption(row));
    QStringList faces;
    for (const FaceRow &row : kFaceRows)
        faces.append("        " +
                     inSingleQuotes(QStringLiteral("%1:%2").arg(row.word, zshDescription(row.description))));
    return QString(kZsh).replace("%options%", options.join('\n')).replace("%faces%", faces.join('\n'));
}

// --- fish
// -------------------------------------------------------------------------------------------------------------

QString fishQuoted(QString text) { return '\'' + text.replace('\\', "\\\\").replace('\'', "\\'") + '\''; }

/// A value, and no file by itself but where one is meant.
QString fishAction(Completion completion)
{
    switch (completion) {
    case Completion::queue: return " -x -a '(lpstat -e 2>/dev/null)'";
    case Completion::ppdFile: return " -x -a '(__qnprint_ppd_files)'";
    case Completion::folder: return " -x -a '(__fish_complete_directories)'";
    case Completion::file: return " -r -F";
    case Completion::nothing: break;
    }
    return " -x";
}

QString fishOption(const OptionRow &row)
{
    QString line = "complete -c qnprint";
    if (row.letter)
        line += QStringLiteral(" -s %1").arg(row.letter);
    if (row.word)
        line += QStringLiteral(" -l %1").arg(row.word);
    if (row.value)
        line += fishAction(row.completion);
    return line + " -d " + fishQuoted(row.description);
}

QString fishText()
{
    QStringList options;
    for (const OptionRow &row : kOptionRows)
        options.append(fishOption(row));
    QStringList faces;
    for (const FaceRow &row : kFaceRows)
        faces.append(QStringLiteral("complete -c qnprint -n 'test (count (commandline -opc)) -eq 1' -a %1 -d %2")
                         .arg(row.word, fishQuoted(row.description)));
    return QString(kFish).replace("%options%", options.join('\n')).replace("%faces%", faces.join('\n'));
}

} // namespace

QByteArray bashCompletion() { return bashText().toUtf8(); }
QByteArray zshCompletion() { return zshText().toUtf8(); }
QByteArray fishCompletion() { return fishText().toUtf8(); }

} // namespace host
