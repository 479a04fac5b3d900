#include "lineFaults.h"

#include "commandLineWords.h"

#include "modelTools/nearNames.h"

#include <algorithm>

namespace
{
using Words = std::vector<std::string>;

bool isOption(const std::string& word)
{
    return word.size() > 1 && word.front() == '-';
}

std::string commandsOf(const CLI::App& program)
{
    std::string listed;
    for (const std::string& name : DtCommandNames(program))
        listed += (listed.empty() ? " Commands are " : ", ") + name;
    return listed + ".";
}

std::string unknownOption(const CLI::App& app, const std::string& word)
{
    const std::string name = word.substr(0, word.find('='));
    const std::string owner = app.get_parent() != nullptr ? "qxgen " + app.get_name() : "qxgen itself";
    const bool isShort = word[1] != '-'; // any letter is near to any other
    return owner + " has no option " + name + "." + (isShort ? "" : DtNearNamesHint(name, DtOptionNames(app)));
}

const CLI::App& chosenCommand(const CLI::App& program)
{
    const std::vector<CLI::App*> chosen = program.get_subcommands();
    return chosen.empty() ? program : *chosen.front();
}

// The option that has more values than it takes; empty when none has.
std::string repeatedOption(const CLI::App& app)
{
    for (const CLI::Option* option : app.get_options())
        if (option->count() > 1 && option->count() > static_cast<std::size_t>(option->get_items_expected_max()))
            return option->get_name();
    return std::string();
}

std::string asSentence(std::string text)
{
    if (text.empty() || text.back() != '.')
        text += '.';
    return text;
}
} // namespace

std::string DtFaultOfCommandName(const CLI::App& program, const Words& arguments)
{
    if (arguments.empty())
        return "no command is given." + commandsOf(program);
    const std::string& first = arguments.front();
    const Words options = DtOptionNames(program);
    const Words commands = DtCommandNames(program);
    const auto has = [&first](const Words& names)
    { return std::find(names.begin(), names.end(), first) != names.end(); };
    if (has(commands) || has(options))
        return std::string();
    if (isOption(first))
        return unknownOption(program, first) + " An option of a command stands behind its name.";
    return "there is no command \"" + first + "\"." + DtNearNamesHint(first, commands) + commandsOf(program);
}

std::string DtFaultOfLine(const CLI::App& program, const CLI::ParseError& error)
{
    const std::string repeated = repeatedOption(chosenCommand(program));
    if (error.get_exit_code() == static_cast<int>(CLI::ExitCodes::ArgumentMismatch) && !repeated.empty())
        return repeated + " is given more than once.";
    const Words rest = program.remaining(true);
    const auto unknown = std::find_if(rest.begin(), rest.end(), isOption);
    if (error.get_exit_code() != static_cast<int>(CLI::ExitCodes::ExtrasError) || unknown == rest.end())
        return asSentence(error.what());
    return unknownOption(chosenCommand(program), *unknown);
}
