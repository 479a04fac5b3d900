#ifndef FOUNDATION_BASE_CONFIG_VARIABLE_H
#define FOUNDATION_BASE_CONFIG_VARIABLE_H

#include "foundation/environment.h"

#include <memory>
#include <set>

class DtVariableGroup;

namespace TCLAP
{
class Arg;
}

namespace DtCmdLine
{
using namespace TCLAP;
class CmdLine;
} // namespace DtCmdLine

// Where a variable can be given.
enum DtVariableScope
{
    DtScopeNone = 0,
    DtScopeConfigFile = 1,
    DtScopeCommandLine = 2,
    DtScopeBoth = 3
};

// The common base of all variables that the command line or the configuration file can set. Owns the command-line
// argument, which lives as long as the variable.
class DtBaseConfigVariable
{
public:
    // Enters the variable in the group; null stands for none.
    DtBaseConfigVariable(DtVariableGroup* group, DtVariableScope scope, const DtString& description);
    virtual ~DtBaseConfigVariable();
    DtBaseConfigVariable(const DtBaseConfigVariable&) = delete;
    DtBaseConfigVariable& operator=(const DtBaseConfigVariable&) = delete;

    virtual const DtString& name() const = 0;
    virtual bool isRequired() const = 0;
    // Adds the variable's argument to the command line; does nothing for a variable that is not on it.
    virtual void getCommandLineArg(DtCmdLine::CmdLine& commandLine) = 0;
    // Takes over what the parse gave to the argument, and sets the was-set flag if it gave anything.
    virtual void updateFromCommandLineArg() = 0;
    // Describes the variable's type, once for all variables of one type: `types` holds those described before.
    virtual void getEnvironmentSchemaType(DtEnvironment environment, std::set<DtString>& types) = 0;
    // Adds the variable below the root of the environment and returns its node.
    virtual std::shared_ptr<DtEnvValue> getEnvironmentValue(DtEnvironment environment) = 0;
    // Takes over the value found in the group's node of the environment. Does not touch the was-set flag.
    virtual void updateFromEnvironment(DtEnvironment environment) = 0;
    virtual DtString type() const = 0;

    DtVariableScope scope() const { return myScope; }
    bool inCommandLine() const { return myScope == DtScopeCommandLine || myScope == DtScopeBoth; }
    // True once the variable has been given on the command line.
    bool isSet() const { return myWasSet; }
    const DtString& description() const { return myDescription; }

protected:
    DtCmdLine::Arg* commandLineArg() const { return myCommandLineArg.get(); }
    // Keeps the argument and adds it to the command line. A kept one is made ready for another parse.
    void addCommandLineArg(DtCmdLine::CmdLine& commandLine);
    void setCommandLineArg(std::unique_ptr<DtCmdLine::Arg> argument);
    void markSet() { myWasSet = true; }
    // Makes the group's node the root of the environment; without a group it stays as it is.
    static void moveToGroup(DtEnvironment& environment, const DtVariableGroup* group);
    // Cuts a "&" out of the name and appends the character behind it to the flag: "a&bc" becomes "abc" with "b".
    static void takeFlagFromName(DtString& name, DtString& flag);

private:
    DtVariableScope myScope;
    bool myWasSet = false;
    std::unique_ptr<DtCmdLine::Arg> myCommandLineArg; // null until asked for
    DtString myDescription;
};

#endif
