#include "foundation/applicationSettings.h"

#include "foundation/baseConfigVariable.h"
#include "foundation/cmdLine.h"

DtApplicationSettings::DtApplicationSettings(const DtString& name, const DtString& title, const DtString& description)
    : DtVariableGroup(name), myTitle(title), myDescription(description)
{
}

void DtApplicationSettings::parseCommandLine(int argc, char** argv, bool pause)
{
    DtCmdLine::CmdLine commandLine(theProgramName, myDescription, theVersion, pause);
    for (DtBaseConfigVariable* variable : variables())
        variable->getCommandLineArg(commandLine);
    commandLine.parse(argc, argv, true);
    for (DtBaseConfigVariable* variable : variables())
        variable->updateFromCommandLineArg();
}
