#include "foundation/variableGroup.h"

#include <algorithm>

void DtVariableGroup::addVariable(DtBaseConfigVariable* variable)
{
    myVariables.push_back(variable);
}

void DtVariableGroup::removeVariable(DtBaseConfigVariable* variable)
{
    myVariables.erase(std::remove(myVariables.begin(), myVariables.end(), variable), myVariables.end());
}

std::shared_ptr<DtEnvValue> DtVariableGroup::getGroupValue(const DtEnvironment& environment) const
{
    return environment.getNamedList(myName);
}
