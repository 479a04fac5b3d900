// qxgen completion SHELL, and what the scripts that it prints ask for.

#include "commandLineWords.h"
#include "commands.h"

#include "foundation/textEnds.h"
#include "modelTools/nearNames.h"

#include <cstdlib>
#include <iostream>
#include <iterator>
#include <memory>

// The scripts know nothing of commands and options: they hand the words of the line to "qxgen complete SHELL", which
// answers with one completion a line. No answer stands for a name of a file, which the shell completes itself.
namespace
{
constexpr const char* theBashScript =
    R"script(# Completion of qxgen for bash. In ~/.bashrc: eval "$(qxgen completion bash)"
_qxgen()
{
    # Readline divides words at "=" and ":", and the program wants them whole.
    local -a words=() found=()
    local at word last=
    for ((at = 1; at <= COMP_CWORD; ++at)); do
        word=${COMP_WORDS[at]}
        if ((${#words[@]} > 0)) && [[ $word =~ ^[=:]+$ || $last =~ ^[=:]+$ ]] &&
            ! [[ -z $word && ${COMP_LINE:0:COMP_POINT} == *' ' ]]; then
            words[${#words[@]}-1]+=$word
        else
            words+=("$word")
        fi
        last=$word
    done
    mapfile -t found < <("${1/#\~/$HOME}" complete bash "${words[@]}" 2>/dev/null)
    local current=${words[${#words[@]}-1]}
    local ahead=${current%"${current##*[=:]}"}
    COMPREPLY=()
    for word in "${found[@]}"; do
        printf -v word %q "${word#"$ahead"}"
        COMPREPLY+=("$word")
    done
    if ((${#found[@]} == 1)) && [[ ${found[0]} == *= ]]; then
        compopt -o nospace
    fi
}
complete -o bashdefault -o default -F _qxgen qxgen
)script";

constexpr const char* theZshScript = R"script(#compdef qxgen
# Completion of qxgen for zsh. In ~/.zshrc, behind compinit: eval "$(qxgen completion zsh)"
_qxgen()
{
    local -a found open
    found=("${(@f)$("${(Q)words[1]}" complete zsh "${(@Q)words[2,CURRENT]}" 2>/dev/null)}")
    found=(${found:#})
    open=(${(M)found:#*=})
    if ((${#found} == 0)); then
        compset -P '*='
        _files
        return
    fi
    compadd -S '' -a open
    found=(${found:#*=})
    compadd -a found
}
if [[ ${funcstack[1]-} == _qxgen ]]; then
    _qxgen "$@"
else
    compdef _qxgen qxgen
fi
)script";

constexpr const char* theFishScript =
    R"script(# Completion of qxgen for fish. In ~/.config/fish/config.fish: qxgen completion fish | source
function __qxgen_complete
    set -l words (commandline -opc)
    set -l current (commandline -ct)
    set -l found ($words[1] complete fish $words[2..-1] $current 2>/dev/null)
    if test (count $found) -gt 0
        printf '%s\n' $found
    else
        __fish_complete_path $current
    end
end
complete -c qxgen -f -a '(__qxgen_complete)'
)script";

struct DtShellRow
{
    const char* name;
    const char* script;
};

const DtShellRow theShells[] = {
    {"bash", theBashScript},
    {"zsh",  theZshScript },
    {"fish", theFishScript},
};

DtExitCode printScript(const std::string& shell)
{
    std::vector<std::string> names;
    for (const DtShellRow& row : theShells)
    {
        if (shell == row.name)
        {
            std::cout << row.script;
            return DtExitCode::Done;
        }
        names.emplace_back(row.name);
    }
    throw DtToolFailure(DtExitCode::Usage,
                        (shell.empty() ? "no shell is named." : "there is no completion for " + shell + ".") +
                            DtNearNamesHint(shell, names) + " Shells are bash, zsh and fish.");
}

// A word as bash has it while it is typed: with its quotes, of which the last may be open, and its backslashes.
std::string withoutQuotes(const std::string& word)
{
    std::string text;
    char quote = '\0';
    std::size_t at = 0;
    if (DtStartsWith(word, "~/") && std::getenv("HOME") != nullptr)
    {
        text = std::getenv("HOME");
        at = 1;
    }
    for (; at < word.size(); ++at)
    {
        const char letter = word[at];
        if (letter == '\\' && quote != '\'' && at + 1 < word.size())
            text += word[++at];
        else if (quote == '\0' && (letter == '"' || letter == '\''))
            quote = letter;
        else if (letter == quote)
            quote = '\0';
        else
            text += letter;
    }
    return text;
}
} // namespace

void addCompletionCommand(CLI::App& program, DtCommandRun& run)
{
    CLI::App* const command = program.add_subcommand("completion", "Prints a script that completes words in a shell");
    const auto shell = std::make_shared<std::string>();
    command->add_option("SHELL", *shell, "The shell that reads the script")->type_name("bash|zsh|fish");
    command->footer("Example, in ~/.bashrc: eval \"$(qxgen completion bash)\"");
    command->callback([shell, &run] { run = [shell] { return printScript(*shell); }; });
}

DtExitCode printCompletions(const CLI::App& program, const std::vector<std::string>& arguments)
{
    if (arguments.empty())
        throw DtToolFailure(DtExitCode::Usage, "\"complete\" is for the scripts of qxgen completion.");
    std::vector<std::string> words(arguments.begin() + 1, arguments.end());
    if (arguments.front() == "bash")
        for (std::string& word : words)
            word = withoutQuotes(word);
    for (const std::string& word : DtCompletions(program, words))
        std::cout << word << '\n';
    return DtExitCode::Done;
}
