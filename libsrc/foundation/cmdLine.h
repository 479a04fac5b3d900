#ifndef FOUNDATION_CMD_LINE_H
#define FOUNDATION_CMD_LINE_H

#include "foundation/string.h"

#include <tclap/CmdLine.h>

#include <vector>

namespace TCLAP
{
// A text value is taken as it stands, blanks included.
template <>
struct ArgTraits<DtString>
{
    using ValueCategory = StringLike;
};
} // namespace TCLAP

// The command-line library under the program's own name, with the output and the ends that differ from its stock ones.
namespace DtCmdLine
{
using namespace TCLAP;

class CmdLine;

// Writes to the global streams, at a level that shows, whatever DtNotifyLevel is: usage and version to DtInfo, failures
// to DtWarn.
class StdOutput : public TCLAP::StdOutput
{
public:
    void usage(CmdLineInterface& commandLine) override;
    void version(CmdLineInterface& commandLine) override;
    // Unlike its stock form it returns; the caller ends the process.
    void failure(CmdLineInterface& commandLine, ArgException& exception) override;
};

// Each prints, waits for a key if the command line was built so, and ends the process with 0.
class HelpVisitor : public Visitor
{
public:
    explicit HelpVisitor(CmdLine& commandLine) : myCommandLine(commandLine) {}
    void visit() override;

private:
    CmdLine& myCommandLine;
};

class VersionVisitor : public Visitor
{
public:
    explicit VersionVisitor(CmdLine& commandLine) : myCommandLine(commandLine) {}
    void visit() override;

private:
    CmdLine& myCommandLine;
};

// One definition of a command line, used for one parse.
//
// Lists its arguments in the order in which they were added, --help and --version last. Does not own the arguments.
class CmdLine : public TCLAP::CmdLine
{
public:
    // programName stands in for the one of the arguments; pause: wait for a key ahead of ending the process.
    CmdLine(const DtString& programName, const DtString& message, const DtString& version, bool pause);

    using TCLAP::CmdLine::add;
    void add(Arg& argument) override;
    void add(Arg* argument) override;
    bool hasHelpAndVersion() override { return true; }

    // Gives the arguments to the Args. A wrong command line ends the process with 1 after failure() when
    // handleFailure, and throws a CmdLineParseException with the error text and the identifier "undefined" otherwise.
    // A bare "--" ends the options, and what follows it is ignored.
    void parse(int argc, const char* const* argv, bool handleFailure);

    // Waits for a key when built with the pause flag, and ends the process.
    [[noreturn]] void leave(int exitCode);

private:
    using TCLAP::CmdLine::parse; // out of reach: they do not know how this program ends

    void parseArguments(std::vector<std::string>& arguments);
    int claim(int& index, std::vector<std::string>& arguments);
    void addBuiltIn(Arg& argument);

    bool myPause;
    StdOutput myOutput;
    HelpVisitor myHelpVisitor;
    VersionVisitor myVersionVisitor;
    SwitchArg myVersionArg;
    SwitchArg myHelpArg;
};
} // namespace DtCmdLine

#endif
