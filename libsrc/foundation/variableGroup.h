#ifndef FOUNDATION_VARIABLE_GROUP_H
#define FOUNDATION_VARIABLE_GROUP_H

#include "foundation/environment.h"

#include <vector>

class DtBaseConfigVariable;

// A named collection of variables, in the order in which they were constructed. Variables enter and leave by
// themselves; the group must outlive them.
class DtVariableGroup
{
public:
    explicit DtVariableGroup(const DtString& name) : myName(name) {}
    virtual ~DtVariableGroup() = default;
    DtVariableGroup(const DtVariableGroup&) = delete;
    DtVariableGroup& operator=(const DtVariableGroup&) = delete;

    const DtString& name() const { return myName; }
    const std::vector<DtBaseConfigVariable*>& variables() const { return myVariables; }
    void addVariable(DtBaseConfigVariable* variable);
    void removeVariable(DtBaseConfigVariable* variable);

    // The group's node inside the environment: the list of its name, null if none.
    std::shared_ptr<DtEnvValue> getGroupValue(const DtEnvironment& environment) const;

private:
    DtString myName;
    std::vector<DtBaseConfigVariable*> myVariables;
};

#endif
