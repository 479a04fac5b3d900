#include "modelTools/commandFileLint.h"

#include "fileGenerator/dataFile.h"
#include "modelTools/inputPath.h"
#include "modelTools/nearNames.h"
#include "modelTools/toolFailure.h"
#include "modelTools/toolRules.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string_view>
#include <system_error>

namespace
{
constexpr std::size_t theLineLimit = 499; // bytes of a line that are taken at once
constexpr const char* theBlanks = " \t\r\v\f";

struct DtCommandRow
{
    const char* name;
    std::size_t least; // words, without the name
    std::size_t most;
};

// But for setDatatype, whose words are in quotes.
const DtCommandRow theCommands[] = {
    {"beginTypes",  0, 0},
    {"endTypes",    0, 0},
    {"file",        2, 3},
    {"include",     1, 1},
    {"language",    1, 1},
    {"subdir",      1, 1},
    {"templateDir", 1, 1},
};
constexpr const char* theTypeCommand = "setDatatype";

std::vector<std::string> wordsOf(const std::string& line)
{
    std::istringstream in(line);
    std::vector<std::string> words;
    for (std::string word; std::getline(in, word, ' ');)
        if (!word.empty())
            words.push_back(word);
    return words;
}

std::string placeOf(const std::string& path)
{
    return DtDataFile(DtString(path)).stdString();
}

// A name in quotes, a type in quotes, and nothing behind them.
bool isTypeCommand(const std::string& line)
{
    std::vector<std::size_t> quotes;
    for (std::size_t at = line.find('"'); at != std::string::npos; at = line.find('"', at + 1))
        quotes.push_back(at);
    return quotes.size() == 4 && quotes[1] > quotes[0] + 1 && quotes[3] + 1 == line.size();
}

std::string commandHint(const std::string& name)
{
    std::vector<std::string> names = {theTypeCommand};
    for (const DtCommandRow& row : theCommands)
        names.emplace_back(row.name);
    return DtNearNamesHint(name, names);
}
} // namespace

void DtCommandFileLint::check(const std::string& file)
{
    std::ifstream in(file, std::ios::binary);
    if (!in)
        throw DtToolFailure(DtExitCode::Unreadable, "the command file " + file + " cannot be read.");
    const DtPlace outer = myPlace;
    myOpenFiles.push_back(file);
    myFiles.push_back(file);
    myPlace = {file, 0, 0};
    for (std::string line; std::getline(in, line);)
    {
        ++myPlace.line;
        checkLine(line);
    }
    myOpenFiles.pop_back();
    myPlace = outer;
}

bool DtCommandFileLint::isCommandFile(const std::string& text)
{
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);)
    {
        const std::vector<std::string> words = wordsOf(line);
        if (!words.empty() && (words[0] == "beginTypes" || words[0] == "templateDir"))
            return true;
    }
    return false;
}

// A carriage return at the end goes with the line feed.
void DtCommandFileLint::checkLine(const std::string& line)
{
    const std::size_t start = line.find_first_not_of(theBlanks);
    myPlace.column = static_cast<unsigned int>(start == std::string::npos ? 1 : start + 1);
    if (line.size() > theLineLimit)
        fault("the line has " + std::to_string(line.size()) + " bytes, and what is behind 499 is taken for a line.",
              DtToolRules::templateLineLength);
    if (start == std::string::npos || line[start] == '#')
        return;
    checkCommand(line.substr(start, line.find_last_not_of('\r') + 1 - start), start);
}

void DtCommandFileLint::checkCommand(const std::string& line, std::size_t start)
{
    myPlace.column = static_cast<unsigned int>(start + 1);
    const std::string name = line.substr(0, line.find(' '));
    if (name == theTypeCommand)
    {
        if (!isTypeCommand(line))
            fault("setDatatype needs a name and a type, both in double quotes.", DtToolRules::templateCommand);
        return;
    }
    const auto* const row = std::find_if(std::begin(theCommands), std::end(theCommands),
                                         [&name](const DtCommandRow& each) { return name == each.name; });
    if (row == std::end(theCommands))
        return fault("there is no command " + name + "." + commandHint(name), DtToolRules::templateCommand);
    const Words words = wordsOf(line);
    if (words.size() <= row->least)
        return fault(name + " needs " + std::to_string(row->least) + (row->least == 1 ? " word." : " words."),
                     DtToolRules::templateCommand);
    if (words.size() - 1 > row->most)
        fault(name + " takes no more than " + std::to_string(row->most) + " words; the rest is passed over.",
              DtToolRules::templateCommand, DtSeverity::Warning);
    if (name == "templateDir")
        myTemplateDirectory = "../data/" + words[1];
    else if (name == "file")
        noteTemplate(words);
    else if (name == "include")
        include(words[1]);
}

void DtCommandFileLint::noteTemplate(const Words& words)
{
    if (myTemplateDirectory.empty())
        return fault("no templateDir stands ahead of this.", DtToolRules::templateCommand);
    const std::string path = myTemplateDirectory + "/" + words[2];
    if (!DtIsFile(placeOf(path)))
        return fault("no such file: " + path, DtToolRules::templateFile);
    const bool hasContext = words.size() > 3 && words[3].front() != '~';
    myTemplates.push_back({path, hasContext ? words[3] : ""});
}

void DtCommandFileLint::include(const std::string& path)
{
    const std::string file = placeOf(path);
    if (std::find(myOpenFiles.begin(), myOpenFiles.end(), file) != myOpenFiles.end())
        fault("a command file that includes itself: " + path, DtToolRules::templateCycle);
    else if (!DtIsFile(file))
        fault("no such file: " + path, DtToolRules::templateFile);
    else if (std::find(myFiles.begin(), myFiles.end(), file) == myFiles.end()) // else it is checked already
        check(file);
}

void DtCommandFileLint::fault(const std::string& text, const DtWarningRule& rule, DtSeverity severity)
{
    DtDiagnostic diagnostic;
    diagnostic.severity = severity;
    diagnostic.place = myPlace;
    diagnostic.text = text;
    diagnostic.rule = rule.id;
    myFaults.push_back(diagnostic);
}
