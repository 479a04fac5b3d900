// The generator for builds and for people at a prompt: no window, no display.

#include "commands.h"
#include "lineFaults.h"

#include "foundation/textEnds.h"
#include "modelTools/argumentFile.h"
#include "modelTools/diagnostics.h"
#include "modelTools/outputException.h"
#include "modelTools/programVersion.h"
#include "modelTools/settingsRenewal.h"
#include "modelTools/signalCleanup.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <iostream>
#include <string>
#include <unistd.h>
#include <vector>

namespace
{
// No commands for users, hence in no help: what the scripts of the completion ask, with words that are taken as they
// are, files of arguments too; and what the starter of the window does ahead of it, with two files.
constexpr const char* theCompletionQuery = "complete";
constexpr const char* theSettingsRequest = "renew-settings";
constexpr const char* theRemedy = " --help tells more.";

int end(DtExitCode code)
{
    return static_cast<int>(code);
}

// In which form the commands that tell diagnostics tell their errors. Those of the command line itself too, which is
// then not understood as a whole: hence the look at its words.
DtDiagnosticFormat formatOfErrors(const std::vector<std::string>& arguments)
{
    if (arguments.empty() || (arguments.front() != "generate" && arguments.front() != "lint-templates"))
        return DtDiagnosticFormat::Text;
    const auto last = std::find(arguments.begin(), arguments.end(), "--");
    for (auto each = arguments.begin(); each != last; ++each)
        if (*each == "--format=json" || (*each == "--format" && each + 1 != last && *(each + 1) == "json"))
            return DtDiagnosticFormat::Json;
    return DtDiagnosticFormat::Text;
}

// Tells how the program fails.
class DtFailureTeller
{
public:
    void setFormat(DtDiagnosticFormat format) { myFormat = format; }
    int fail(DtExitCode code, const std::string& text, const std::string& file = std::string()) const
    {
        std::cerr << DtFormattedNotice(DtSeverity::Error, text, myFormat, file) << std::flush;
        return end(code);
    }

private:
    DtDiagnosticFormat myFormat = DtDiagnosticFormat::Text;
};

// Ends a command that may have written to standard output: what was asked for has to get there.
int endOfOutput(DtExitCode code, const DtFailureTeller& teller)
{
    if (std::cout.flush())
        return end(code);
    return teller.fail(DtGraver(code, DtExitCode::Unwritable), "standard output cannot be written.");
}

// The option library takes the word behind "--name=" for its value when nothing stands behind the sign. A variable of a
// script that is empty gives such a word, and has an empty value.
std::vector<std::string> withEmptyValuesApart(const std::vector<std::string>& arguments)
{
    std::vector<std::string> words;
    const auto last = std::find(arguments.begin(), arguments.end(), "--");
    for (auto each = arguments.begin(); each != arguments.end(); ++each)
    {
        const bool isEmptyValue =
            each < last && DtStartsWith(*each, "--") && each->find('=') == each->size() - 1 && each->size() > 3;
        words.push_back(isEmptyValue ? each->substr(0, each->size() - 1) : *each);
        if (isEmptyValue)
            words.emplace_back();
    }
    return words;
}

int runCommand(CLI::App& program, const DtCommandRun& run, std::vector<std::string> arguments,
               const DtFailureTeller& teller)
{
    std::reverse(arguments.begin(), arguments.end()); // as the library wants them
    try
    {
        program.parse(arguments);
    }
    catch (const CLI::ParseError& error) // help and version too
    {
        if (error.get_exit_code() == static_cast<int>(CLI::ExitCodes::Success))
            return endOfOutput(static_cast<DtExitCode>(program.exit(error)), teller);
        return teller.fail(DtExitCode::Usage, DtFaultOfLine(program, error) + theRemedy);
    }
    return endOfOutput(run(), teller);
}

// Gives each standard stream that is closed a file that fails as a closed one does. The next file that is opened would
// take its place otherwise, and get what is told.
void openClosedStreams()
{
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        if (fcntl(stream, F_GETFD) < 0 && errno == EBADF)
            static_cast<void>(open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY)); // the lowest one free
}

int runProgram(const std::vector<std::string>& arguments, DtFailureTeller& teller)
{
    CLI::App program("Generates C++ and other files from object models of the High Level Architecture.", "qxgen");
    program.set_version_flag("--version", std::string("qxgen ") + DtProgramVersion());
    program.require_subcommand(1);
    program.footer("qxgen COMMAND --help tells of one command. @FILE stands for the arguments in a file, one a line.");
    DtCommandRun run;
    addGenerateCommand(program, run);
    addListCommand(program, run);
    addLintTemplatesCommand(program, run);
    addWindowCommand(program, run);
    addCompletionCommand(program, run);
    if (!arguments.empty() && arguments.front() == theCompletionQuery)
        return endOfOutput(printCompletions(program, {arguments.begin() + 1, arguments.end()}), teller);
    if (arguments.size() == 3 && arguments.front() == theSettingsRequest)
    {
        DtRenewSettings(arguments[1], arguments[2]);
        return end(DtExitCode::Done);
    }
    teller.setFormat(formatOfErrors(arguments)); // for the files of arguments
    const std::vector<std::string> words = withEmptyValuesApart(DtExpandedArguments(arguments));
    teller.setFormat(formatOfErrors(words));
    const std::string fault = DtFaultOfCommandName(program, words);
    if (!fault.empty())
        return teller.fail(DtExitCode::Usage, fault + theRemedy);
    return runCommand(program, run, words, teller);
}
} // namespace

int main(int argc, char** argv)
{
    openClosedStreams();
    // A reader that goes away and a limit of file size show as failed writes, which are told.
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    DtSignalCleanup::install();
    DtFailureTeller teller;
    try
    {
        return runProgram({argv + 1, argv + argc}, teller);
    }
    catch (const DtToolFailure& failure)
    {
        return teller.fail(failure.code(), failure.what());
    }
    catch (const DtOutputException& failure)
    {
        return teller.fail(DtExitCode::Unwritable, failure.reason(), failure.path().string());
    }
    catch (const std::exception& error)
    {
        return teller.fail(DtExitCode::Fault, std::string("this is a fault of the program: ") + error.what());
    }
}
