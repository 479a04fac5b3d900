#include "foundation/varType.h"

namespace
{
void addSchemaType(DtEnvironment& environment, const char* name, const char* base)
{
    const DtEnvironment::NodePtr type = environment.addObject(name, "simpleType");
    const DtEnvironment::NodePtr restriction = environment.addObject("restriction", type);
    environment.addAttribute("base", base, restriction);
}
} // namespace

template <>
const char* DtVarType<bool>::nativeNameOfType()
{
    return "bool";
}

template <>
const char* DtVarType<bool>::argNameOfType()
{
    return "bool";
}

template <>
void DtVarType<bool>::convertToEnvironmentValue(const bool& value, DtEnvValue& node)
{
    node.setValue(value ? "true" : "false");
}

template <>
bool DtVarType<bool>::convertFromEnvironmentValue(const DtEnvValue& node)
{
    return node.value().caseCompare("true");
}

template <>
void DtVarType<bool>::createSchemaType(DtEnvironment& environment)
{
    addSchemaType(environment, nativeNameOfType(), "xs:boolean");
}

template <>
const char* DtVarType<DtString>::nativeNameOfType()
{
    return "string";
}

template <>
const char* DtVarType<DtString>::argNameOfType()
{
    return "string";
}

template <>
void DtVarType<DtString>::convertToEnvironmentValue(const DtString& value, DtEnvValue& node)
{
    node.setValue(value);
}

template <>
DtString DtVarType<DtString>::convertFromEnvironmentValue(const DtEnvValue& node)
{
    return node.value();
}

template <>
void DtVarType<DtString>::createSchemaType(DtEnvironment& environment)
{
    addSchemaType(environment, nativeNameOfType(), "xs:string");
}
