#include "commandLineWords.h"

#include "fileGenerator/progressMeter.h"
#include "foundation/textEnds.h"
#include "modelTools/classPattern.h"
#include "modelTools/configKeys.h"
#include "modelTools/dataDirectory.h"
#include "modelTools/diagnostics.h"
#include "modelTools/modelGeneration.h"

#include <algorithm>
#include <set>
#include <string_view>

namespace
{
using Words = std::vector<std::string>;

bool takesValue(const CLI::Option& option)
{
    return option.get_items_expected_max() > 0;
}

// "--name" or "-n", without what follows "="; null when the command has no such option.
const CLI::Option* findOption(const CLI::App& command, const std::string& word)
{
    const std::string name = word.substr(0, word.find('='));
    for (const CLI::Option* option : command.get_options({}))
        if (option->nonpositional() && option->check_name(name))
            return option;
    return nullptr;
}

const CLI::App* findCommand(const CLI::App& program, const std::string& name)
{
    for (const CLI::App* command : program.get_subcommands({}))
        if (command->get_name() == name)
            return command;
    return nullptr;
}

// The values of an option whose type is written as "this|that"; empty for all others.
Words listedValues(const CLI::Option& option)
{
    const std::string type = option.get_type_name();
    const std::string_view values = std::string_view(type).substr(0, type.find(':'));
    Words words;
    if (values.find('|') == std::string_view::npos)
        return words;
    for (std::size_t start = 0; start <= values.size();)
    {
        const std::size_t end = std::min(values.find('|', start), values.size());
        words.emplace_back(values.substr(start, end - start));
        start = end + 1;
    }
    return words;
}

Words keptWith(const Words& words, const std::string& start)
{
    Words kept;
    std::copy_if(words.begin(), words.end(), std::back_inserter(kept),
                 [&start](const std::string& word) { return DtStartsWith(word, start); });
    return kept;
}

DtGenerationRequest requestOf(const DtTypedLine& line)
{
    DtGenerationRequest request;
    request.models = line.positionals;
    request.project = line.valueOf("project");
    request.configFile = line.valueOf("config");
    request.modelPaths = line.valuesOf("model-path");
    request.templateDirectories = line.valuesOf("template-dir");
    request.dataDirectory = DtFindDataDirectory(line.valueOf("data-dir"));
    return request;
}

Words scripts(const DtTypedLine& line, const std::string& start)
{
    return keptWith(DtModelGeneration::scriptNames(requestOf(line)), start);
}

Words settings(const DtTypedLine& /*line*/, const std::string& start)
{
    Words words;
    for (const DtConfigKey& key : DtConfigKeys())
    {
        const std::string assignment = std::string(key.name) + "=";
        if (key.refusal != nullptr)
            continue;
        if (key.kind == DtConfigKey::Flag && DtStartsWith(start, assignment))
            words.insert(words.end(), {assignment + "false", assignment + "true"});
        else
            words.push_back(assignment);
    }
    return keptWith(words, start);
}

std::vector<DtString> loadedClasses(const DtTypedLine& line)
{
    const DtDiagnostics silence;
    DtQuietProgressMeter quiet;
    const DtProgressUse use(quiet);
    DtModelGeneration generation(requestOf(line));
    generation.load();
    return DtClassNames(generation.tree());
}

// Names without the root; where none fits, short names.
Words classes(const DtTypedLine& line, const std::string& start)
{
    const std::string sign = DtStartsWith(start, "!") ? "!" : "";
    std::set<std::string> dotted;
    std::set<std::string> shortNames;
    for (const DtString& fullName : loadedClasses(line))
    {
        if (DtIsManagementClass(fullName) && !line.has("with-management"))
            continue;
        const std::string& name = fullName.stdString();
        dotted.insert(sign + name.substr(name.find('.') + 1));
        shortNames.insert(sign + name.substr(name.rfind('.') + 1));
    }
    const Words found = keptWith({dotted.begin(), dotted.end()}, start);
    return !found.empty() ? found : keptWith({shortNames.begin(), shortNames.end()}, start);
}

struct DtValueRow
{
    const char* option;
    Words (*values)(const DtTypedLine& line, const std::string& start);
};

const DtValueRow theValues[] = {
    {"script", scripts },
    {"select", classes },
    {"set",    settings},
};

Words valuesFor(const CLI::Option& option, const DtTypedLine& line, const std::string& start)
{
    for (const DtValueRow& row : theValues)
        if (option.get_single_name() == row.option)
            return row.values(line, start);
    return keptWith(listedValues(option), start);
}

// Long ones, and where nothing but a dash is typed the short ones too.
Words optionNames(const CLI::App& app, const std::string& start)
{
    Words names = DtOptionNames(app);
    const auto isLeft = [&start](const std::string& name)
    { return !DtStartsWith(name, start) || (start != "-" && !DtStartsWith(name, "--")); };
    names.erase(std::remove_if(names.begin(), names.end(), isLeft), names.end());
    return names;
}

Words positionalValues(const CLI::App& command, const std::string& start)
{
    for (const CLI::Option* option : command.get_options({}))
        if (option->get_positional())
            return keptWith(listedValues(*option), start);
    return Words();
}

// "--name=start": the value is completed together with the name.
Words valuesBehindName(const DtTypedLine& line, const std::string& word)
{
    const std::size_t equals = word.find('=');
    const CLI::Option* const option = findOption(*line.command, word);
    if (option == nullptr || !takesValue(*option))
        return Words();
    Words words = valuesFor(*option, line, word.substr(equals + 1));
    for (std::string& value : words)
        value.insert(0, word, 0, equals + 1);
    return words;
}

Words completions(const CLI::App& program, const DtTypedLine& line, const std::string& word)
{
    const bool isOption = DtStartsWith(word, "-") && !line.hasEndOfOptions;
    if (line.command == nullptr)
        return isOption ? optionNames(program, word) : keptWith(DtCommandNames(program), word);
    if (line.pending != nullptr)
        return valuesFor(*line.pending, line, word);
    if (isOption && word.find('=') != std::string::npos)
        return valuesBehindName(line, word);
    return isOption ? optionNames(*line.command, word) : positionalValues(*line.command, word);
}
} // namespace

DtTypedLine::DtTypedLine(const CLI::App& program, const std::vector<std::string>& words)
{
    for (const std::string& word : words)
        take(program, word);
}

void DtTypedLine::take(const CLI::App& program, const std::string& word)
{
    if (pending != nullptr)
    {
        values[pending->get_single_name()].push_back(word);
        pending = nullptr;
    }
    else if (command == nullptr)
        command = findCommand(program, word);
    else if (word == "--" && !hasEndOfOptions)
        hasEndOfOptions = true;
    else if (DtStartsWith(word, "-") && !hasEndOfOptions)
        takeOption(word);
    else if (!DtStartsWith(word, "@")) // a file of arguments
        positionals.push_back(word);
}

void DtTypedLine::takeOption(const std::string& word)
{
    const CLI::Option* const option = findOption(*command, word);
    if (option == nullptr)
        return;
    const std::size_t equals = word.find('=');
    if (equals != std::string::npos)
        values[option->get_single_name()].push_back(word.substr(equals + 1));
    else if (takesValue(*option))
        pending = option;
    else
        values[option->get_single_name()];
}

std::vector<std::string> DtTypedLine::valuesOf(const std::string& option) const
{
    const auto found = values.find(option);
    return found != values.end() ? found->second : std::vector<std::string>();
}

std::string DtTypedLine::valueOf(const std::string& option) const
{
    const std::vector<std::string> all = valuesOf(option);
    return all.empty() ? std::string() : all.back();
}

std::vector<std::string> DtCommandNames(const CLI::App& program)
{
    Words names;
    for (const CLI::App* command : program.get_subcommands({}))
        names.push_back(command->get_name());
    return names;
}

std::vector<std::string> DtOptionNames(const CLI::App& app)
{
    Words names;
    for (const CLI::Option* option : app.get_options({}))
        for (const std::string& name : option->get_lnames())
            names.push_back("--" + name);
    for (const CLI::Option* option : app.get_options({}))
        for (const std::string& name : option->get_snames())
            names.push_back("-" + name);
    return names;
}

std::vector<std::string> DtCompletions(const CLI::App& program, std::vector<std::string> words)
{
    if (words.empty())
        words.emplace_back();
    const std::string word = words.back();
    words.pop_back();
    try
    {
        return completions(program, DtTypedLine(program, words), word);
    }
    catch (const std::exception&) // a model that cannot be read has no names to offer
    {
        return {};
    }
}
