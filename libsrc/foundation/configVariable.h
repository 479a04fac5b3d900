#ifndef FOUNDATION_CONFIG_VARIABLE_H
#define FOUNDATION_CONFIG_VARIABLE_H

#include "foundation/baseConfigVariable.h"

// A variable with one value, for bool (a switch on the command line) and DtString. Starts with its default; enters its
// group at construction and leaves it when destroyed.
template <typename T>
class DtConfigVariable : public DtBaseConfigVariable
{
public:
    // A "&" in the name marks the character behind it as the flag: it is cut out and the character is added to `flag`.
    DtConfigVariable(DtVariableGroup* group, const DtString& name, const T& defaultValue, const DtString& description,
                     DtVariableScope scope, bool required, const DtString& flag);
    ~DtConfigVariable() override;

    const DtString& name() const override { return myName; }
    bool isRequired() const override { return myIsRequired; }
    void getCommandLineArg(DtCmdLine::CmdLine& commandLine) override;
    void updateFromCommandLineArg() override;
    void getEnvironmentSchemaType(DtEnvironment environment, std::set<DtString>& types) override;
    std::shared_ptr<DtEnvValue> getEnvironmentValue(DtEnvironment environment) override;
    void updateFromEnvironment(DtEnvironment environment) override;
    DtString type() const override;

    const DtString& flag() const { return myFlag; }
    const T& defaultValue() const { return myDefaultValue; }
    const T& value() const { return myValue; }
    void setValue(const T& value) { myValue = value; } // the was-set flag stays

private:
    std::unique_ptr<DtCmdLine::Arg> makeCommandLineArg() const;

    DtString myName;
    DtString myFlag;
    bool myIsRequired;
    DtVariableGroup* myGroup;
    T myDefaultValue;
    T myValue;
};

template <>
std::unique_ptr<DtCmdLine::Arg> DtConfigVariable<bool>::makeCommandLineArg() const;
template <>
std::unique_ptr<DtCmdLine::Arg> DtConfigVariable<DtString>::makeCommandLineArg() const;
extern template class DtConfigVariable<bool>;
extern template class DtConfigVariable<DtString>;

#endif
