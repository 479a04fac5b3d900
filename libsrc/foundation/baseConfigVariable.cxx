#include "foundation/baseConfigVariable.h"

#include "foundation/cmdLine.h"
#include "foundation/variableGroup.h"

DtBaseConfigVariable::DtBaseConfigVariable(DtVariableGroup* group, DtVariableScope scope, const DtString& description)
    : myScope(scope), myDescription(description)
{
    if (group != nullptr)
        group->addVariable(this);
}

DtBaseConfigVariable::~DtBaseConfigVariable() = default;

void DtBaseConfigVariable::setCommandLineArg(std::unique_ptr<DtCmdLine::Arg> argument)
{
    myCommandLineArg = std::move(argument);
}

void DtBaseConfigVariable::addCommandLineArg(DtCmdLine::CmdLine& commandLine)
{
    myCommandLineArg->reset();
    commandLine.add(myCommandLineArg.get());
}

void DtBaseConfigVariable::moveToGroup(DtEnvironment& environment, const DtVariableGroup* group)
{
    if (group != nullptr)
        environment.setRoot(group->getGroupValue(environment));
}

void DtBaseConfigVariable::takeFlagFromName(DtString& name, DtString& flag)
{
    const std::string text = name.stdString();
    const std::size_t at = text.find('&');
    if (at == std::string::npos)
        return;
    flag += DtString(text.substr(at + 1, 1));
    name = DtString(text.substr(0, at) + text.substr(at + 1));
}
