#include "fileGenerator/codedDataTypeFileWriter.h"

#include "fileGenerator/dataTypeMapper.h"
#include "foundation/environment.h"
#include "foundation/warningRules.h"
#include "omtReader/omtNode.h"

std::map<DtString, int> DtCodedDataTypeFileWriter::myPlusAttributeCounts;

struct DtCodedDataTypeFileWriter::DtTokens
{
    static const DtTokenTable<DtCodedDataTypeFileWriter>& own()
    {
        static const DtTokenRow<DtCodedDataTypeFileWriter> theRows[] = {
            {"<!LocalTypeIsNotEncodeable!>",
             [](const DtCodedDataTypeFileWriter& w) -> DtString
             { return DtDataTypeMapper::instance()->isNonEncodeableDataType(w.myClassName) ? "1" : ""; }},
            {"<!LocalTypeHasNoCoding!>",
             [](const DtCodedDataTypeFileWriter& w) -> DtString
             { return DtDataTypeMapper::instance()->refusesCoding(w.myClassName) ? "1" : ""; }          },
        };
        static const DtTokenTable<DtCodedDataTypeFileWriter> theTable(theRows);
        return theTable;
    }
};

DtCodedDataTypeFileWriter::DtCodedDataTypeFileWriter(const DtString& fileName, const DtString& templateName,
                                                     DtCCompatibleNames& names)
    : DtDataTypeFileWriter(fileName, templateName, names), myOwnTokens(DtTokens::own(), this, DtTokenMemory::OneLine)
{
    myTokenChain.putAhead({&myOwnTokens});
}

void DtCodedDataTypeFileWriter::determineDecodeability()
{
    const DtString className = myClassName;
    const std::vector<DtAttribute> attributes = myAttributes;
    for (const DtCompiledDatatype& compiled : myCompiledDatatypes)
    {
        enterDatatype(compiled);
        determineDecodeabilityOfClass(DtSubject::datatype(compiled.first->getName()));
    }
    setCurrentClass(className, attributes);
}

int DtCodedDataTypeFileWriter::addTypeFromSimpleTypeList(const DtEnvObject* entry, DtString& type,
                                                         DtString& cardinality)
{
    DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
    type = entry->value();
    const DtString representation = mapper.repOfSimpleType(type);
    if (representation.isEmpty())
        return addTypeFromArrayTypeList(entry, type, cardinality);
    type = mapper.quorvexType(representation);
    mapper.addMapping(entry->value(), type);
    return 1;
}

int DtCodedDataTypeFileWriter::addTypeFromArrayTypeList(const DtEnvObject* entry, DtString& type, DtString& cardinality)
{
    const DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
    const DtString array = entry->value();
    const DtString& element = mapper.repOfArrayType(array);
    if (element.isEmpty())
        return 0;
    const DtString& mapped = mapper.quorvexType(element);
    type = mapped.isEmpty() ? mapper.quorvexType(mapper.repOfSimpleType(element)) : mapped;
    cardinality = mapper.cardinalityOfArrayType(array);
    if (cardinality == "Dynamic")
        cardinality = "0+";
    return 1;
}

void DtCodedDataTypeFileWriter::resetPlusAttributeCounts()
{
    myPlusAttributeCounts.clear();
}

// One value has room for a single length on the wire. A type can be marked and warned about for both causes; those that
// use it learn of it through the mapper.
void DtCodedDataTypeFileWriter::determineDecodeabilityOfClass(const DtSubject& subject)
{
    DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
    int count = 0;
    bool isBad = false;
    for (const DtAttribute& attribute : myAttributes)
    {
        isBad = isBad || mapper.isNonEncodeableDataType(attribute.nonVectorType());
        if (attribute.hasPlusCardinality())
        {
            ++count;
            if (plusCount(attribute.nonVectorType()) > 0)
            {
                DtTellWarning(DtRules::noEncoding, subject,
                              "Warning: Cannot encode/decode attributes of type: " + myClassName +
                                  ": contains a + attribute of a type that contains a + attribute.\n");
                mapper.addNonEncodeableDataType(myClassName);
            }
        }
        count += plusCount(attribute.type());
    }
    myPlusAttributeCounts[myClassName] = count;
    if (count >= 2 || isBad)
    {
        DtTellWarning(DtRules::noEncoding, subject, "Warning: Cannot encode/decode data type " + myClassName + ".\n");
        mapper.addNonEncodeableDataType(myClassName);
    }
    if (mapper.isNonEncodeableDataType(myClassName) && !mapper.refusesCoding(myClassName))
        DtTellWarning(DtRules::openArraysCoded, subject,
                      "Warning: Data type " + myClassName + " is coded all the same, as codeOpenArrays is on.\n");
}

int DtCodedDataTypeFileWriter::plusCount(const DtString& type)
{
    const auto entry = myPlusAttributeCounts.find(type);
    return entry == myPlusAttributeCounts.end() ? 0 : entry->second;
}
