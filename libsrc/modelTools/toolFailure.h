#ifndef MODEL_TOOLS_TOOL_FAILURE_H
#define MODEL_TOOLS_TOOL_FAILURE_H

#include <stdexcept>
#include <string>

// How a command of qxgen ends. The numbers are part of its interface.
enum class DtExitCode : int
{
    Done = 0,
    Usage = 1,      // the command line, or a name on it that nothing has
    Unreadable = 2, // a model, project, template or configuration
    Findings = 3,   // errors in a model, with --werror warnings too, or a value that does not fit
    Differs = 4,    // --verify found differences, or --expect-list other outputs
    Unwritable = 5, // output, or its lock is held
    Fault = 6,      // of the program itself
    Interrupted = 130,
    Terminated = 143
};

// The one to end with when two apply: the first of 1, 2, 5, 3, 4.
DtExitCode DtGraver(DtExitCode one, DtExitCode other);

// Ends a command: what is wrong and, in the same text, the remedy.
class DtToolFailure : public std::runtime_error
{
public:
    DtToolFailure(DtExitCode code, const std::string& text) : std::runtime_error(text), myCode(code) {}
    DtExitCode code() const { return myCode; }

private:
    DtExitCode myCode;
};

#endif
