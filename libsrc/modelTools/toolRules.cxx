#include "modelTools/toolRules.h"

#include <algorithm>
#include <cstring>

namespace
{
const DtWarningRule* const theRules[] = {
    &DtToolRules::editedByHand,           &DtToolRules::includeDirectory,    &DtToolRules::manifestDamaged,
    &DtToolRules::missingClass,           &DtToolRules::outputCheck,         &DtToolRules::recovery,
    &DtToolRules::scriptReplacesOutput,   &DtToolRules::scriptWithoutOutput, &DtToolRules::templateBar,
    &DtToolRules::templateCarriageReturn, &DtToolRules::templateCommand,     &DtToolRules::templateCondition,
    &DtToolRules::templateCycle,          &DtToolRules::templateFile,        &DtToolRules::templateLineLength,
    &DtToolRules::templateLoop,           &DtToolRules::templateToken,       &DtToolRules::templateTokenPlace,
    &DtToolRules::templateUnopened,       &DtToolRules::unknownDatatype,
};

std::vector<const DtWarningRule*> joinedRules()
{
    std::vector<const DtWarningRule*> rules = DtRules::all();
    rules.insert(rules.end(), std::begin(theRules), std::end(theRules));
    std::sort(rules.begin(), rules.end(),
              [](const DtWarningRule* one, const DtWarningRule* other) { return std::strcmp(one->id, other->id) < 0; });
    return rules;
}
} // namespace

const std::vector<const DtWarningRule*>& DtToolRules::all()
{
    static const std::vector<const DtWarningRule*> theJoinedRules = joinedRules();
    return theJoinedRules;
}
