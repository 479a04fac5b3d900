#include "fileGenerator/enumFileWriter.h"

#include "fileGenerator/cCompatibleName.h"
#include "fileGenerator/commentText.h"
#include "fileGenerator/dataTypeMapper.h"
#include "fileGenerator/datatypeClassNames.h"
#include "fileGenerator/literalText.h"
#include "fileGenerator/regularExpressionUtils.h"
#include "foundation/stringUtils.h"
#include "foundation/warningRules.h"

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
        form.isSigned = form.isSigned || value.number().startsWith("-");
    return form;
}

bool fits(const DtString& text, const DtNumberForm& form)
{
    const int bits = 8 * form.octets - (form.isSigned ? 1 : 0);
    if (text.startsWith("-"))
        return form.isSigned && (bits >= 63 || std::strtoll(text.c_str(), nullptr, 10) >= -(1LL << bits));
    return bits >= 64 || std::strtoull(text.c_str(), nullptr, 10) >> bits == 0;
}

// As an expression of C++, of type DtInt64. What only a number without a sign holds stands for the same 64 bits.
DtString numberExpression(const DtString& number)
{
    static const DtString theGreatest("9223372036854775807");
    if (number == DtString("-9223372036854775808"))
        return "-9223372036854775807 - 1";
    const bool isGreater =
        number.length() > theGreatest.length() || (number.length() == theGreatest.length() && theGreatest < number);
    return number.startsWith("-") || !isGreater ? number : "static_cast<DtInt64>(" + number + "u)";
}

void warnOfUnfit(const DtEnumeration& enumeration, const DtNumberForm& form)
{
    for (const DtEnumerationValue& value : enumeration.vals())
    {
        if (!fits(value.number(), form))
            DtTellWarning(DtRules::unfitEnumerator, DtSubject::enumerator(value.name(), enumeration.name()),
                          "Warning: Enumerator " + value.name() + " of " + enumeration.name() +
                              " does not fit into its representation.\n");
    }
}

} // namespace

struct DtEnumerationFileWriter::DtTokens
{
    using Writer = DtEnumerationFileWriter;
    static DtString flag(bool isSet) { return isSet ? "1" : "0"; }
    static const DtTokenTable<Writer>& ofEnumeration()
    {
        static const DtTokenRow<Writer> theRows[] = {
            {"<!EnumerationName!>",           [](const Writer& w) { return w.createEnumerationName(*w.myCurrentEnumeration); }},
            {"<!EnumerationTypeName!>",       [](const Writer& w) { return w.currentNames().type; }                           },
            {"<!EnumerationIsRepeated!>",
             [](const Writer& w) { return DtString(w.currentNames().isRepeated ? "1" : ""); }                                 },
            {"<!EnumerationOctets!>",         [](const Writer& w) { return DtString(w.currentNames().numberForm.octets); }    },
            {"<!EnumerationIsSigned!>",       [](const Writer& w) { return flag(w.currentNames().numberForm.isSigned); }      },
            {"<!EnumerationIsLittleEndian!>",
             [](const Writer& w) { return flag(w.currentNames().numberForm.isLittleEndian); }                                 },
            {"<!EnumerationDocumentation!>",
             [](const Writer& w) { return DtCommentText(w.myCurrentEnumeration->documentation(), 0); }                        },
        };
        static const DtTokenTable<Writer> theTable(theRows,
                                                   [](const Writer& w) { return w.myCurrentEnumeration != nullptr; });
        return theTable;
    }
    static const DtTokenTable<Writer>& ofField()
    {
        static const DtTokenRow<Writer> theRows[] = {
            {"<!EnumerationFieldName!>",
             [](const Writer& w)
             {
                 const DtString enumeration = w.createEnumerationName(*w.myCurrentEnumeration);
                 return w.createEnumerationValueName(enumeration, *w.myCurrentValue);
             }                                                                                                         },
            {"<!EnumerationFieldIdentifier!>",    [](const Writer& w) { return w.currentIdentifier(); }                },
            {"<!EnumerationFieldText!>",          [](const Writer& w) { return literalText(w.myCurrentValue->name()); }},
            {"<!EnumerationFieldValue!>",         [](const Writer& w) { return w.myCurrentValue->val(); }              },
            {"<!EnumerationFieldNumber!>",
             [](const Writer& w) { return numberExpression(w.myCurrentValue->number()); }                              },
            {"<!EnumerationFieldDocumentation!>",
             [](const Writer& w) { return DtCommentText(w.myCurrentValue->documentation(), 4); }                       },
        };
        static const DtTokenTable<Writer> theTable(theRows,
                                                   [](const Writer& w) { return w.myCurrentValue != nullptr; });
        return theTable;
    }
};

DtEnumerationFileWriter::DtEnumerationFileWriter(const DtString& fileName)
    : DtFileWriter(fileName, "../data/templates/enums.tlt"),
      myEnumerationTokens(DtTokens::ofEnumeration(), this),
      myFieldTokens(DtTokens::ofField(), this)
{
    myTokenChain.putAhead({&myEnumerationTokens, &myFieldTokens});
}

DtEnumerationFileWriter::DtEnumerationFileWriter(const DtString& fileName, const DtString& templateName,
                                                 const DtEnumerationFileWriter& header)
    : DtFileWriter(fileName, templateName),
      myEnumerations(header.myEnumerations),
      myNames(header.myNames),
      myEnumerationTokens(DtTokens::ofEnumeration(), this),
      myFieldTokens(DtTokens::ofField(), this)
{
    myTokenChain.putAhead({&myEnumerationTokens, &myFieldTokens});
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

DtEnumerationFileWriter::DtNames DtEnumerationFileWriter::makeNames(const DtEnumeration& enumeration)
{
    DtNames names;
    names.type = DtCCompatibleNames::wholeIdentifier(
        DtDatatypeClassNames::instance().identifierOf(enumeration.name(), createEnumerationName(enumeration)));
    names.isRepeated = !myTypeNames.insert(names.type).second;
    names.numberForm = enumeration.numberForm().octets > 0 ? enumeration.numberForm() : guessedForm(enumeration);
    if (names.isRepeated)
        DtTellWarning(DtRules::leftOutEnumeration, DtSubject::datatype(enumeration.name()),
                      "Warning: Enumeration " + enumeration.name() + " is left out: another one is called " +
                          names.type + " too.\n");
    warnOfUnfit(enumeration, names.numberForm);
    std::set<DtString> used;
    for (const DtEnumerationValue& value : enumeration.vals())
    {
        const DtString name = asIdentifier(createEnumerationValueName(names.type, value));
        names.identifiers.push_back(unusedName(name, used));
        if (names.identifiers.back() != name)
            DtTellWarning(DtRules::renamedEnumerator, DtSubject::enumerator(value.name(), enumeration.name()),
                          "Warning: Enumerator " + value.name() + " of " + enumeration.name() + " is called " +
                              names.identifiers.back() + ": another one is called " + name + " too.\n");
    }
    return names;
}

const DtEnumerationFileWriter::DtNames& DtEnumerationFileWriter::currentNames() const
{
    return myNames[static_cast<std::size_t>(myCurrentEnumeration - myEnumerations.data())];
}

const DtString& DtEnumerationFileWriter::currentIdentifier() const
{
    return currentNames().identifiers[static_cast<std::size_t>(myCurrentValue - myCurrentEnumeration->vals().data())];
}

void DtEnumerationFileWriter::writeEnumerations(std::istream& stream)
{
    const std::streampos start = stream.tellg();
    for (const DtEnumeration& enumeration : myEnumerations)
    {
        myCurrentEnumeration = &enumeration;
        myEnumerationTokens.clear();
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
        myCurrentValue = &value;
        myFieldTokens.clear();
        writeBodyFrom(stream, start);
    }
    myCurrentValue = nullptr;
}
