#ifndef FOUNDATION_MULTI_CONFIG_VARIABLE_H
#define FOUNDATION_MULTI_CONFIG_VARIABLE_H

#include "foundation/baseConfigVariable.h"

#include <vector>

// A variable that may be given several times, for DtString. Starts without values; enters its group at construction
// and leaves it when destroyed.
template <typename T>
class DtMultiConfigVariable : public DtBaseConfigVariable
{
public:
    // elementName: names one value in a configuration store. A "&" in the name is treated as in DtConfigVariable.
    DtMultiConfigVariable(DtVariableGroup* group, const DtString& name, const DtString& elementName,
                          const DtString& description, DtVariableScope scope, bool required, const DtString& flag);
    ~DtMultiConfigVariable() override;

    const DtString& name() const override { return myName; }
    bool isRequired() const override { return myIsRequired; }
    void getCommandLineArg(DtCmdLine::CmdLine& commandLine) override;
    void updateFromCommandLineArg() override;
    void getEnvironmentSchemaType(DtEnvironment environment, std::set<DtString>& types) override; // does nothing
    std::shared_ptr<DtEnvValue> getEnvironmentValue(DtEnvironment environment) override;
    void updateFromEnvironment(DtEnvironment environment) override;
    DtString type() const override { return "list"; }

    const DtString& elementName() const { return myElementName; }
    const DtString& flag() const { return myFlag; }
    const std::vector<T>& values() const { return myValues; } // in the order in which they were given

private:
    DtString myName;
    DtString myElementName;
    DtString myFlag;
    bool myIsRequired;
    DtVariableGroup* myGroup;
    std::vector<T> myValues;
};

extern template class DtMultiConfigVariable<DtString>;

#endif
