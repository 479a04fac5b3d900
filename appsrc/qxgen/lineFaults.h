#ifndef QXGEN_LINE_FAULTS_H
#define QXGEN_LINE_FAULTS_H

#include <CLI/CLI.hpp>

#include <string>
#include <vector>

// What is wrong with a command line that does not begin with a command or an option of the program itself: a sentence
// with near names and the commands that there are. Empty when it begins well, or with --help or --version.
std::string DtFaultOfCommandName(const CLI::App& program, const std::vector<std::string>& arguments);

// What the option library could not parse, as a sentence, with near names for an unknown option.
std::string DtFaultOfLine(const CLI::App& program, const CLI::ParseError& error);

#endif
