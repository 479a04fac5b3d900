#include "fileGenerator/memberTypes.h"

#include "fileGenerator/dataTypeMapper.h"
#include "fileGenerator/datatypeClassNames.h"
#include "fileGenerator/representationWalk.h"

namespace
{

// Empty when the representations below a simple type lead to no mapped one.
DtString mappedRepresentation(const DtString& datatype)
{
    const DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
    const auto below = [&mapper](const DtString& name) { return mapper.repOfSimpleType(name); };
    for (const DtString& name : followRepresentations(datatype, below).names)
    {
        if (name != datatype && !mapper.quorvexType(name).isEmpty())
            return mapper.quorvexType(name);
    }
    return DtString();
}

// What the tables know to stand below a datatype. Of an enumeration the model's representation goes ahead of the
// mapper's, which is a target type and no longer tells the byte order.
DtString representationOf(const DtString& datatype)
{
    const DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
    if (!mapper.repOfSimpleType(datatype).isEmpty())
        return mapper.repOfSimpleType(datatype);
    const DtString& ofEnumeration = DtDatatypeClassNames::instance().enumerationRepresentation(datatype);
    if (!ofEnumeration.isEmpty())
        return ofEnumeration;
    if (!mapper.repForEnumName(datatype).isEmpty())
        return mapper.repForEnumName(datatype);
    return mapper.repOfArrayType(datatype);
}

} // namespace

DtString memberType(const DtString& datatype)
{
    DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
    if (!mapper.quorvexType(datatype).isEmpty())
        return mapper.quorvexType(datatype);
    DtString type = mappedRepresentation(datatype);
    if (!type.isEmpty())
    {
        mapper.addMapping(datatype, type);
        return type;
    }
    const DtString& className = DtDatatypeClassNames::instance().className(datatype);
    return className.isEmpty() ? datatype : className;
}

DtString lastRepresentation(const DtString& datatype)
{
    const DtRepresentationChain chain = followRepresentations(datatype, representationOf);
    if (chain.isRing)
        return datatype;
    return chain.names.size() > 1 ? chain.names.back() : DtString();
}

DtString encodingOf(const DtString& datatype, const DtString& ofMember)
{
    const DtString& ofDatatype = DtDataTypeMapper::instance()->encOfDatatype(datatype);
    if (!datatype.isEmpty() && !ofDatatype.isEmpty())
        return ofDatatype;
    if (datatype == "RTIobjectId" || datatype == "RTIObjectId")
        return "RPRnullTerminatedArray";
    return ofMember.isEmpty() ? DtString("HLAvariableArray") : ofMember;
}

DtAttribute makeMember(const DtString& name, const DtString& statedDatatype, const DtString& cardinality)
{
    const DtString datatype = DtDataTypeMapper::instance()->behindReferences(statedDatatype);
    DtAttribute member(name, memberType(datatype));
    member.setCardinality(cardinality);
    member.setDatatype(datatype);
    member.setEncoding(DtDataTypeMapper::instance()->encOfDatatype(datatype));
    member.setDatatypeDatatype(lastRepresentation(datatype));
    return member;
}
