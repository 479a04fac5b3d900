#ifndef FOUNDATION_VAR_TYPE_H
#define FOUNDATION_VAR_TYPE_H

#include "foundation/environment.h"

// The conversions of one type of variable, between the variable, its command-line argument and its node in a store.
// There are two: bool and DtString.
template <typename T>
class DtVarType
{
public:
    static const char* nativeNameOfType(); // names the type in a schema
    static const char* argNameOfType();    // labels a value in the usage text
    static T convertToArgType(const T& value) { return value; }
    static T convertFromArgType(const T& value) { return value; }
    static void convertToEnvironmentValue(const T& value, DtEnvValue& node);
    static T convertFromEnvironmentValue(const DtEnvValue& node);
    // Adds the description of the type below the root.
    static void createSchemaType(DtEnvironment& environment);
};

template <>
const char* DtVarType<bool>::nativeNameOfType();
template <>
const char* DtVarType<bool>::argNameOfType();
template <>
void DtVarType<bool>::convertToEnvironmentValue(const bool& value, DtEnvValue& node);
template <>
bool DtVarType<bool>::convertFromEnvironmentValue(const DtEnvValue& node);
template <>
void DtVarType<bool>::createSchemaType(DtEnvironment& environment);

template <>
const char* DtVarType<DtString>::nativeNameOfType();
template <>
const char* DtVarType<DtString>::argNameOfType();
template <>
void DtVarType<DtString>::convertToEnvironmentValue(const DtString& value, DtEnvValue& node);
template <>
DtString DtVarType<DtString>::convertFromEnvironmentValue(const DtEnvValue& node);
template <>
void DtVarType<DtString>::createSchemaType(DtEnvironment& environment);

#endif
