#include "foundation/configVariable.h"

#include "foundation/cmdLine.h"
#include "foundation/varType.h"
#include "foundation/variableGroup.h"

#include <iostream>

namespace
{
// The kind of argument that carries a value of type T.
template <typename T>
struct DtArgOf
{
    using Type = DtCmdLine::ValueArg<T>;
};
template <>
struct DtArgOf<bool>
{
    using Type = DtCmdLine::SwitchArg;
};
} // namespace

template <typename T>
DtConfigVariable<T>::DtConfigVariable(DtVariableGroup* group, const DtString& name, const T& defaultValue,
                                      const DtString& description, DtVariableScope scope, bool required,
                                      const DtString& flag)
    : DtBaseConfigVariable(group, scope, description),
      myName(name),
      myFlag(flag),
      myIsRequired(required),
      myGroup(group),
      myDefaultValue(defaultValue),
      myValue(defaultValue)
{
    takeFlagFromName(myName, myFlag);
}

template <typename T>
DtConfigVariable<T>::~DtConfigVariable()
{
    if (myGroup != nullptr)
        myGroup->removeVariable(this);
}

template <>
std::unique_ptr<DtCmdLine::Arg> DtConfigVariable<bool>::makeCommandLineArg() const
{
    return std::make_unique<DtCmdLine::SwitchArg>(myFlag.stdString(), myName.stdString(), description().stdString(),
                                                  myDefaultValue);
}

template <>
std::unique_ptr<DtCmdLine::Arg> DtConfigVariable<DtString>::makeCommandLineArg() const
{
    using Type = DtVarType<DtString>;
    return std::make_unique<DtCmdLine::ValueArg<DtString>>(myFlag.stdString(), myName.stdString(),
                                                           description().stdString(), myIsRequired,
                                                           Type::convertToArgType(myValue), Type::argNameOfType());
}

template <typename T>
void DtConfigVariable<T>::getCommandLineArg(DtCmdLine::CmdLine& commandLine)
{
    if (!inCommandLine())
        return;
    if (commandLineArg() == nullptr)
        setCommandLineArg(makeCommandLineArg());
    addCommandLineArg(commandLine);
}

template <typename T>
void DtConfigVariable<T>::updateFromCommandLineArg()
{
    const auto* const argument = static_cast<const typename DtArgOf<T>::Type*>(commandLineArg());
    if (argument == nullptr || !argument->isSet())
        return;
    myValue = DtVarType<T>::convertFromArgType(argument->getValue());
    markSet();
}

template <typename T>
void DtConfigVariable<T>::getEnvironmentSchemaType(DtEnvironment environment, std::set<DtString>& types)
{
    if (types.insert(type()).second)
        DtVarType<T>::createSchemaType(environment);
    if (!myIsRequired)
        environment.addAttribute("minOccurs", "0");
}

template <typename T>
std::shared_ptr<DtEnvValue> DtConfigVariable<T>::getEnvironmentValue(DtEnvironment environment)
{
    if (!description().isEmpty())
        environment.addComment(description());
    const std::shared_ptr<DtEnvValue> node = environment.addObject(myName);
    if (node != nullptr)
        DtVarType<T>::convertToEnvironmentValue(myValue, *node);
    return node;
}

template <typename T>
void DtConfigVariable<T>::updateFromEnvironment(DtEnvironment environment)
{
    moveToGroup(environment, myGroup);
    std::list<std::shared_ptr<DtEnvValue>> matches;
    environment.getObjectsByName(myName, matches);
    if (matches.empty())
        return;
    if (matches.size() > 1)
        std::cout << "Unable to get from Environment, Object not unique: " << myName << std::endl;
    else if (const DtEnvObject* const object = DtEnvObject::castToObject(matches.front()))
        setValue(DtVarType<T>::convertFromEnvironmentValue(*object));
    else
        std::cout << "Environment Object wrong type." << std::endl;
}

template <typename T>
DtString DtConfigVariable<T>::type() const
{
    return DtVarType<T>::nativeNameOfType();
}

template class DtConfigVariable<bool>;
template class DtConfigVariable<DtString>;
