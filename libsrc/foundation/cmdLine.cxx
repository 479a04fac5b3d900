#include "foundation/cmdLine.h"

#include "foundation/fileUtils.h"
#include "foundation/outputStream.h"
#include "foundation/restored.h"
#include "foundation/warningRules.h"

#include <algorithm>
#include <cstdlib>
#include <sstream>

namespace
{
constexpr int theInfoLevel = 3;
constexpr int theFailureLevel = 4;
} // namespace

namespace DtCmdLine
{
void StdOutput::usage(CmdLineInterface& commandLine)
{
    const DtRestored level(DtNotifyLevel, theInfoLevel);
    DtInfo << std::endl << "USAGE: " << std::endl << std::endl;
    _shortUsage(commandLine, DtInfo);
    DtInfo << std::endl << "Where: " << std::endl;
    _longUsage(commandLine, DtInfo);
}

void StdOutput::version(CmdLineInterface& commandLine)
{
    const DtRestored level(DtNotifyLevel, theInfoLevel);
    DtInfo << commandLine.getProgramName() << " version: " << commandLine.getVersion() << std::endl;
}

void StdOutput::failure(CmdLineInterface& commandLine, ArgException& exception)
{
    const DtRestored level(DtNotifyLevel, theFailureLevel);
    std::ostringstream text;
    text << "PARSE ERROR: " << exception.argId() << std::endl
         << "             " << exception.error() << std::endl
         << std::endl
         << "Brief USAGE: " << std::endl;
    _shortUsage(commandLine, text);
    text << std::endl
         << "For complete USAGE and HELP type: " << std::endl
         << "   " << commandLine.getProgramName() << " --help" << std::endl;
    DtTellWarning(DtRules::wrongCommandLine, DtSubject::none(), text.str());
}

void HelpVisitor::visit()
{
    myCommandLine.getOutput()->usage(myCommandLine);
    myCommandLine.leave(0);
}

void VersionVisitor::visit()
{
    myCommandLine.getOutput()->version(myCommandLine);
    myCommandLine.leave(0);
}

CmdLine::CmdLine(const DtString& programName, const DtString& message, const DtString& version, bool pause)
    : TCLAP::CmdLine(message.stdString(), ' ', version.stdString(), false),
      myPause(pause),
      myHelpVisitor(*this),
      myVersionVisitor(*this),
      myVersionArg("", "version", "Displays version information and exits.", false, &myVersionVisitor),
      myHelpArg("h", "help", "Displays usage information and exits.", false, &myHelpVisitor)
{
    _progName = programName.stdString();
    setOutput(&myOutput);
    addBuiltIn(myVersionArg);
    addBuiltIn(myHelpArg);
}

// Adds an argument behind all others; the base class puts each new one in front.
void CmdLine::addBuiltIn(Arg& argument)
{
    TCLAP::CmdLine::add(&argument);
    _argList.splice(_argList.end(), _argList, _argList.begin());
}

void CmdLine::add(Arg& argument)
{
    add(&argument);
}

void CmdLine::add(Arg* argument)
{
    constexpr int theBuiltInCount = 3; // "--", --version and --help
    TCLAP::CmdLine::add(argument);
    _argList.splice(std::prev(_argList.end(), theBuiltInCount), _argList, _argList.begin());
}

void CmdLine::parse(int argc, const char* const* argv, bool handleFailure)
{
    std::vector<std::string> arguments(argv + std::min(argc, 1), argv + argc);
    try
    {
        parseArguments(arguments);
    }
    catch (ArgException& exception)
    {
        if (!handleFailure)
            throw CmdLineParseException(exception.error());
        getOutput()->failure(*this, exception);
        leave(1);
    }
}

void CmdLine::parseArguments(std::vector<std::string>& arguments)
{
    int requiredCount = 0;
    for (int index = 0; index < static_cast<int>(arguments.size()); ++index)
    {
        if (arguments[static_cast<std::size_t>(index)] == "--")
            break;
        requiredCount += claim(index, arguments);
    }
    if (requiredCount < _numRequired)
        throw CmdLineParseException("One or more required arguments missing!");
    if (requiredCount > _numRequired)
        throw CmdLineParseException("Too many arguments!");
}

namespace
{
// True for switches given together, such as "-ab", all of which have been claimed: each Arg that claims one of them
// blots it out.
bool isSpentCombination(const std::string& argument)
{
    return argument.size() > 1 && argument[0] == Arg::flagStartChar() &&
           argument.find_first_not_of(Arg::blankChar(), 1) == std::string::npos;
}
} // namespace

// Finds the Arg that takes the argument at the index, which moves to the last one taken. Returns how many of the
// required Args that serves.
int CmdLine::claim(int& index, std::vector<std::string>& arguments)
{
    const std::string argument = arguments[static_cast<std::size_t>(index)];
    for (Arg* each : _argList)
        if (each->processArg(&index, arguments))
            return _xorHandler.check(each);
    if (isSpentCombination(arguments[static_cast<std::size_t>(index)]))
        return 0;
    throw CmdLineParseException("Couldn't find match for argument", argument);
}

void CmdLine::leave(int exitCode)
{
    {
        const DtRestored level(DtNotifyLevel, theInfoLevel);
        if (myPause)
        {
            DtInfo << "Press any key to continue" << std::endl;
            while (!DtPollBlockingInputChar())
                DtSleep(0.1);
        }
    }
    std::exit(exitCode);
}
} // namespace DtCmdLine
