#include "fileGenerator/enumFileWriter.h"

#include "fileGenerator/dataTypeMapper.h"
#include "fileGenerator/regularExpressionUtils.h"
#include "foundation/stringUtils.h"

#include <cstdlib>

namespace
{

struct DtSizeRow
{
    unsigned int bits;
    const char* type;
};

const DtSizeRow theRepresentations[] = {
    {8,  "DtU8" },
    {16, "DtU16"},
    {32, "DtU32"},
    {64, "DtU64"},
};

} // namespace

DtEnumerationFileWriter::DtEnumerationFileWriter(const DtString& fileName)
    : DtFileWriter(fileName, "../data/templates/enums.tlt")
{
}

void DtEnumerationFileWriter::decodeFileLine(DtString& line)
{
    if (DtHasToken(line))
        decodeEnumerationTokens(line);
    DtFileWriter::decodeFileLine(line);
}

void DtEnumerationFileWriter::writeMultipleTimes(const DtString& loopName, std::istream& stream)
{
    if (loopName == "Enumeration")
        writeEnumerations(stream);
    else if (loopName == "EnumerationField")
        writeFields(stream);
    else
        DtFileWriter::writeMultipleTimes(loopName, stream);
}

void DtEnumerationFileWriter::addEnumeration(const DtEnumeration& enumeration)
{
    myEnumerations.push_back(enumeration);
    const DtString& name = enumeration.name();
    DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
    mapper.addMapping(name, createEnumerationName(enumeration));
    DtString size = enumeration.size();
    if (size.isEmpty())
    {
        DtInfo << "Size of enumeration " << name << " not specified.  Will try to parse enumeration name." << std::endl;
        size = DtRegularExpressionUtils::regExpReplace(".*Enum", name, "");
        if (std::strtol(size.c_str(), nullptr, 0) == 0)
            return;
    }
    mapper.addEnumerationSizeMapping(name, size);
    mapper.addEnumNameToRepMapping(name, getEnumerationRepFromSize(size));
}

DtString DtEnumerationFileWriter::createEnumerationName(const DtEnumeration& enumeration) const
{
    return "Dt" + DtFirstCharToUpper(enumeration.name());
}

DtString DtEnumerationFileWriter::createEnumerationValueName(const DtString& /*enumerationName*/,
                                                             const DtEnumerationValue& value) const
{
    return cleanedValueName(value.name());
}

DtString DtEnumerationFileWriter::getEnumerationRepFromSize(const DtString& size) const
{
    const unsigned int bits = size.toUInt();
    for (const DtSizeRow& row : theRepresentations)
    {
        if (row.bits == bits)
            return row.type;
    }
    return "DtU16";
}

DtString DtEnumerationFileWriter::cleanedValueName(const DtString& name)
{
    static const std::string theRemoved = "/#-<>&";
    std::string result;
    for (const char character : name.stdString())
    {
        if (theRemoved.find(character) == std::string::npos)
            result += character;
    }
    return result;
}

std::vector<DtString> DtEnumerationFileWriter::knownTokens()
{
    return {"<!EnumerationName!>", "<!EnumerationFieldName!>", "<!EnumerationFieldValue!>"};
}

void DtEnumerationFileWriter::decodeEnumerationTokens(DtString& line) const
{
    DtString enumerationName;
    if (myCurrentEnumeration != nullptr)
    {
        enumerationName = createEnumerationName(*myCurrentEnumeration);
        line = DtReplaceAllSubstrings(line, "<!EnumerationName!>", enumerationName);
    }
    if (myCurrentEnumerationValue == nullptr)
        return;
    const DtString name = createEnumerationValueName(enumerationName, *myCurrentEnumerationValue);
    line = DtReplaceAllSubstrings(line, "<!EnumerationFieldName!>", name);
    line = DtReplaceAllSubstrings(line, "<!EnumerationFieldValue!>", myCurrentEnumerationValue->val());
}

void DtEnumerationFileWriter::writeEnumerations(std::istream& stream)
{
    const std::streampos start = stream.tellg();
    for (const DtEnumeration& enumeration : myEnumerations)
    {
        myCurrentEnumeration = &enumeration;
        writeBodyFrom(stream, start);
    }
    myCurrentEnumeration = nullptr;
}

// Nothing comes out outside an "Enumeration" loop.
void DtEnumerationFileWriter::writeFields(std::istream& stream)
{
    if (myCurrentEnumeration == nullptr)
        return;
    const std::streampos start = stream.tellg();
    for (const DtEnumerationValue& value : myCurrentEnumeration->vals())
    {
        myCurrentEnumerationValue = &value;
        writeBodyFrom(stream, start);
    }
    myCurrentEnumerationValue = nullptr;
}
