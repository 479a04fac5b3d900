#include "foundation/multiConfigVariable.h"

#include "foundation/cmdLine.h"
#include "foundation/varType.h"
#include "foundation/variableGroup.h"

template <typename T>
DtMultiConfigVariable<T>::DtMultiConfigVariable(DtVariableGroup* group, const DtString& name,
                                                const DtString& elementName, const DtString& description,
                                                DtVariableScope scope, bool required, const DtString& flag)
    : DtBaseConfigVariable(group, scope, description),
      myName(name),
      myElementName(elementName),
      myFlag(flag),
      myIsRequired(required),
      myGroup(group)
{
    takeFlagFromName(myName, myFlag);
}

template <typename T>
DtMultiConfigVariable<T>::~DtMultiConfigVariable()
{
    if (myGroup != nullptr)
        myGroup->removeVariable(this);
}

template <typename T>
void DtMultiConfigVariable<T>::getCommandLineArg(DtCmdLine::CmdLine& commandLine)
{
    if (!inCommandLine())
        return;
    if (commandLineArg() == nullptr)
        setCommandLineArg(std::make_unique<DtCmdLine::MultiArg<T>>(myFlag.stdString(), myName.stdString(),
                                                                   description().stdString(), myIsRequired,
                                                                   DtVarType<T>::argNameOfType()));
    addCommandLineArg(commandLine);
}

template <typename T>
void DtMultiConfigVariable<T>::updateFromCommandLineArg()
{
    const auto* const argument = static_cast<const DtCmdLine::MultiArg<T>*>(commandLineArg());
    if (argument == nullptr || argument->getValue().empty())
        return;
    myValues.clear();
    for (const T& value : argument->getValue())
        myValues.push_back(DtVarType<T>::convertFromArgType(value));
    markSet();
}

template <typename T>
void DtMultiConfigVariable<T>::getEnvironmentSchemaType(DtEnvironment, std::set<DtString>&)
{
}

template <typename T>
std::shared_ptr<DtEnvValue> DtMultiConfigVariable<T>::getEnvironmentValue(DtEnvironment environment)
{
    if (!description().isEmpty())
        environment.addComment(description());
    const std::shared_ptr<DtEnvValue> node = environment.addObject(myName);
    for (const T& value : myValues)
        if (const std::shared_ptr<DtEnvValue> element = environment.addObject(myElementName, node))
            DtVarType<T>::convertToEnvironmentValue(value, *element);
    return node;
}

template <typename T>
void DtMultiConfigVariable<T>::updateFromEnvironment(DtEnvironment environment)
{
    moveToGroup(environment, myGroup);
    std::list<std::shared_ptr<DtEnvValue>> matches;
    environment.getObjectsByName(myName, matches);
    if (matches.size() != 1)
        return;
    environment.setRoot(matches.front());
    matches.clear();
    environment.getObjectsByName(myElementName, matches);
    myValues.clear();
    for (const std::shared_ptr<DtEnvValue>& match : matches)
        if (const DtEnvObject* const object = DtEnvObject::castToObject(match))
            myValues.push_back(DtVarType<T>::convertFromEnvironmentValue(*object));
}

template class DtMultiConfigVariable<DtString>;
