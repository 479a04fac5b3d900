#ifndef QXGEN_COMMANDS_H
#define QXGEN_COMMANDS_H

#include "modelTools/toolFailure.h"

#include <CLI/CLI.hpp>

#include <functional>
#include <string>
#include <vector>

// What the chosen subcommand does, set while the command line is read.
using DtCommandRun = std::function<DtExitCode()>;

// Add a subcommand each, with its options. The run that it sets may refer to nothing but what it owns.
void addCompletionCommand(CLI::App& program, DtCommandRun& run);
void addGenerateCommand(CLI::App& program, DtCommandRun& run);
void addLintTemplatesCommand(CLI::App& program, DtCommandRun& run);
void addListCommand(CLI::App& program, DtCommandRun& run);
void addWindowCommand(CLI::App& program, DtCommandRun& run);

// Answers the scripts of the completion command: the name of the shell and the words behind the program's name, up to
// the one that is typed.
DtExitCode printCompletions(const CLI::App& program, const std::vector<std::string>& arguments);

#endif
