#include "fileGenerator/enumFileWriter.h"

#include "fileGenerator/classFileWriter.h"
#include "fileGenerator/dataTypeMapper.h"
#include "fileGenerator/datatypeClassNames.h"
#include "fileGenerator/literalText.h"
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

// The name with a "_" for every character that no identifier holds.
DtString asIdentifier(const DtString& name)
{
    std::string result = name.stdString();
    for (char& character : result)
    {
        const char lower = DtToLower(character);
        if (!DtIsDigit(character) && !(lower >= 'a' && lower <= 'z'))
            character = '_';
    }
    return DtString(result);
}

// The name, or with a number behind it the first that is free.
DtString unusedName(const DtString& name, std::set<DtString>& used)
{
    DtString unused = name;
    for (int number = 2; !used.insert(unused).second; ++number)
        unused = name + "_" + DtString(number);
    return unused;
}

// Of an enumeration that the model gives no representation for: its size, else the number at the end of its name, else
// 32 bits. It has a sign if one of its numbers has.
DtNumberForm guessedForm(const DtEnumeration& enumeration)
{
    const std::string& name = enumeration.name().stdString();
    const std::size_t digits = name.find_last_not_of("0123456789") + 1;
    unsigned int bits =
        enumeration.size().isEmpty() ? DtString(name.substr(digits)).toUInt() : enumeration.size().toUInt();
    if (bits == 0 || bits > 64)
        bits = 32;
    DtNumberForm form;
    form.octets = static_cast<int>((bits + 7) / 8);
    for (const DtEnumerationValue& value : enumeration.vals())
        form.isSigned = form.isSigned || value.val().startsWith("-");
    return form;
}

bool fits(const DtString& text, const DtNumberForm& form)
{
    const int number = text.toInt();
    if (form.octets >= 5)
        return form.isSigned || number >= 0;
    const long long limit = 1LL << (8 * form.octets - (form.isSigned ? 1 : 0));
    return number < limit && number >= (form.isSigned ? -limit : 0);
}

void warnOfUnfit(const DtEnumeration& enumeration, const DtNumberForm& form)
{
    for (const DtEnumerationValue& value : enumeration.vals())
    {
        if (!fits(value.val(), form))
            DtWarn << "Warning: Enumerator " << value.name() << " of " << enumeration.name()
                   << " does not fit into its representation.\n";
    }
}

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
    myNames.push_back(makeNames(enumeration));
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
    return {"<!EnumerationName!>",      "<!EnumerationTypeName!>",        "<!EnumerationIsRepeated!>",
            "<!EnumerationOctets!>",    "<!EnumerationIsSigned!>",        "<!EnumerationIsLittleEndian!>",
            "<!EnumerationFieldName!>", "<!EnumerationFieldIdentifier!>", "<!EnumerationFieldText!>",
            "<!EnumerationFieldValue!>"};
}

DtEnumerationFileWriter::DtNames DtEnumerationFileWriter::makeNames(const DtEnumeration& enumeration)
{
    DtNames names;
    names.type = DtDatatypeClassNames::instance().identifierOf(
        enumeration.name(), DtClassFileWriter::identifierOf(createEnumerationName(enumeration)));
    names.isRepeated = !myTypeNames.insert(names.type).second;
    names.numberForm = enumeration.numberForm().octets > 0 ? enumeration.numberForm() : guessedForm(enumeration);
    if (names.isRepeated)
        DtWarn << "Warning: Enumeration " << enumeration.name() << " is left out: another one is called " << names.type
               << " too.\n";
    warnOfUnfit(enumeration, names.numberForm);
    std::set<DtString> used;
    for (const DtEnumerationValue& value : enumeration.vals())
    {
        const DtString name = asIdentifier(createEnumerationValueName(names.type, value));
        names.identifiers.push_back(unusedName(name, used));
        if (names.identifiers.back() != name)
            DtWarn << "Warning: Enumerator " << value.name() << " of " << enumeration.name() << " is called "
                   << names.identifiers.back() << ": another one is called " << name << " too.\n";
    }
    return names;
}

void DtEnumerationFileWriter::decodeEnumerationTokens(DtString& line) const
{
    if (myCurrentEnumeration == nullptr)
        return;
    const DtNames& names = myNames[static_cast<std::size_t>(myCurrentEnumeration - myEnumerations.data())];
    const DtNumberForm& form = names.numberForm;
    line = DtReplaceAllSubstrings(line, "<!EnumerationName!>", createEnumerationName(*myCurrentEnumeration));
    line = DtReplaceAllSubstrings(line, "<!EnumerationTypeName!>", names.type);
    line = DtReplaceAllSubstrings(line, "<!EnumerationIsRepeated!>", names.isRepeated ? "1" : "");
    line = DtReplaceAllSubstrings(line, "<!EnumerationOctets!>", DtString(form.octets));
    line = DtReplaceAllSubstrings(line, "<!EnumerationIsSigned!>", form.isSigned ? "1" : "0");
    line = DtReplaceAllSubstrings(line, "<!EnumerationIsLittleEndian!>", form.isLittleEndian ? "1" : "0");
    if (myCurrentEnumerationValue != nullptr)
        decodeValueTokens(line, *myCurrentEnumeration, names);
}

void DtEnumerationFileWriter::decodeValueTokens(DtString& line, const DtEnumeration& enumeration,
                                                const DtNames& names) const
{
    const DtEnumerationValue& value = *myCurrentEnumerationValue;
    const auto place = static_cast<std::size_t>(&value - enumeration.vals().data());
    const DtString name = createEnumerationValueName(createEnumerationName(enumeration), value);
    line = DtReplaceAllSubstrings(line, "<!EnumerationFieldName!>", name);
    line = DtReplaceAllSubstrings(line, "<!EnumerationFieldIdentifier!>", names.identifiers[place]);
    line = DtReplaceAllSubstrings(line, "<!EnumerationFieldText!>", literalText(value.name()));
    line = DtReplaceAllSubstrings(line, "<!EnumerationFieldValue!>", value.val());
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
