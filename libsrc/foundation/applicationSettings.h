#ifndef FOUNDATION_APPLICATION_SETTINGS_H
#define FOUNDATION_APPLICATION_SETTINGS_H

#include "foundation/variableGroup.h"

// The top group: all variables that the command line can set.
class DtApplicationSettings : public DtVariableGroup
{
public:
    static constexpr const char* theProgramName = "codeGen"; // in usage and version text
    static constexpr const char* theVersion = "5.10";        // of the whole program

    // The description closes the usage text.
    DtApplicationSettings(const DtString& name, const DtString& title, const DtString& description);

    const DtString& title() const { return myTitle; }
    const DtString& description() const { return myDescription; }

    // Gathers the argument of every variable, parses, and updates the variables: afterwards isSet() of a variable tells
    // whether it was given. A wrong command line is reported on DtWarn and ends the process with 1; --help and
    // --version end it with 0. pause: wait for a key ahead of that end.
    void parseCommandLine(int argc, char** argv, bool pause);

private:
    DtString myTitle;
    DtString myDescription;
};

#endif
