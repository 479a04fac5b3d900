#ifndef QXGEN_COMMAND_LINE_WORDS_H
#define QXGEN_COMMAND_LINE_WORDS_H

#include <CLI/CLI.hpp>

#include <map>
#include <string>
#include <vector>

// What stands on a command line that is still being typed, as far as the definition of the program's options tells it.
struct DtTypedLine
{
    const CLI::App* command = nullptr;                      // null ahead of its name
    std::map<std::string, std::vector<std::string>> values; // by the long name of the option, without dashes
    std::vector<std::string> positionals;
    const CLI::Option* pending = nullptr; // an option whose value comes next
    bool hasEndOfOptions = false;         // "--" has been typed

    DtTypedLine(const CLI::App& program, const std::vector<std::string>& words);
    std::vector<std::string> valuesOf(const std::string& option) const;
    std::string valueOf(const std::string& option) const; // the last, empty when there is none
    bool has(const std::string& option) const { return values.count(option) > 0; }

private:
    void take(const CLI::App& program, const std::string& word);
    void takeOption(const std::string& word);
};

std::vector<std::string> DtCommandNames(const CLI::App& program);
// With their dashes; the long ones first.
std::vector<std::string> DtOptionNames(const CLI::App& app);

// What may stand in place of the last of the words: names of commands and options, values of options. Empty where a
// name of a file belongs, and where nothing is known. All come from the definition of the program's options, but for
// the keys of the configuration, the scripts and the classes of the models on the line.
std::vector<std::string> DtCompletions(const CLI::App& program, std::vector<std::string> words);

#endif
