#include "codeGenApp/customCodeTokens.h"

#include "fileGenerator/classFileWriter.h"
#include "fileGenerator/dataTypeMapper.h"
#include "fileGenerator/datatypeShape.h"
#include "fileGenerator/memberTypes.h"
#include "fileGenerator/omtProject.h"
#include "fileGenerator/toolkitLayouts.h"
#include "foundation/stringUtils.h"
#include "omtReader/enumeratedDatatypeNode.h"
#include "omtReader/omtTree.h"
#include "omtReader/visitDatatype.h"

#include <iterator>
#include <set>

namespace
{
const DtDataTypeMapper& mapper()
{
    return *DtDataTypeMapper::instance();
}

// With the datatype that a reference is coded as.
DtCustomCodeMember coded(DtCustomCodeMember member)
{
    member.datatype = mapper().behindReferences(member.datatype);
    return member;
}
} // namespace

// Rows run top to bottom, and a later row sees what an earlier one put in. The rows behind the prefix make up the form
// on the wire, as the encoders and decoders have it.
const DtTokenTable<DtCustomCodeTokens>& DtCustomCodeTokens::table()
{
    using Tokens = DtCustomCodeTokens;
    // clang-format off
    static const DtTokenRow<DtCustomCodeTokens> theRows[] = {
        {"<!AttributeDatatypeEnum!>",     [](const Tokens& t) { return t.enumerationType(); }},
        {"<!AttributeName!>",             [](const Tokens& t) { return t.accessors().setter; }},
        {"<!attributeName!>",             [](const Tokens& t) { return t.accessors().getter; }},
        {"<!AttributeDatatype!>",         [](const Tokens& t) { return t.identifier(t.myMember.datatype); }},
        {"<!EnumerationRep!>",            [](const Tokens& t) { return t.enumerationRep(); }},
        {"<!enumerationRep!>",            [](const Tokens& t) { return DtFirstCharToLowerConditional(t.enumerationRep()); }},
        {"<!EncClassName!>",              [](const Tokens& t) { return t.myMember.className + "Encoder"; }},
        {"<!DecClassName!>",              [](const Tokens& t) { return t.myMember.className + "Decoder"; }},
        {"<!EncInterClassName!>",         [](const Tokens& t) { return t.myMember.className + "InterEncoder"; }},
        {"<!DecInterClassName!>",         [](const Tokens& t) { return t.myMember.className + "InterDecoder"; }},
        {"<!StateRepName!>",              [](const Tokens& t) { return t.myMember.className + "StateRepository"; }},
        {"<!InteractionName!>",           [](const Tokens& t) { return t.myMember.className + "Inter"; }},
        {"<!Prefix!>",                    [](const Tokens& t) { return t.myPrefix; }},
        {"<!AttributeDatatypeDatatype!>", [](const Tokens& t) { return t.identifier(t.lastRepresentation()); }},
        {"<!AttributeElementCount!>",     [](const Tokens& t) { return DtString(t.valueForm().count); }},
        {"<!AttributeOctets!>",           [](const Tokens& t) { return DtString(t.valueForm().number.octets); }},
        {"<!AttributeIsLittleEndian!>",   [](const Tokens& t) -> DtString { return t.valueForm().number.isLittleEndian ? "1" : "0"; }},
        {"<!AttributeLayout!>",           [](const Tokens& t) { return t.valueForm().layout; }},
        {"<!AttributeEncoding!>",         [](const Tokens& t) { return encodingOf(t.myMember.datatype, DtString()); }},
        {"<!AttributeWireEncoding!>",     [](const Tokens& t) { return t.valueForm().encoding; }},
        {"<!AttributeWireForm!>",         [](const Tokens& t) { return t.wireForm(); }},
    };
    // clang-format on
    static const DtTokenTable<DtCustomCodeTokens> theTable(theRows);
    return theTable;
}

DtCustomCodeTokens::DtCustomCodeTokens(const DtCustomCodeMember& member, const DtOMTTree* tree,
                                       const DtOmtProject* project, const DtString& prefix, DtCCompatibleNames& names)
    : myMember(coded(member)), myTree(tree), myProject(project), myPrefix(prefix), myNames(names)
{
}

DtAccessorNames DtCustomCodeTokens::accessors() const
{
    return DtClassFileWriter::accessorNamesOf(myMember.name, myNames);
}

void DtCustomCodeTokens::expand(DtString& line) const
{
    DtTokenValues<DtCustomCodeTokens> values(table(), this);
    DtTokenSource* const chain[] = {&values};
    DtExpandTokensInOrder(line, chain, std::size(chain)); // long names get their numbers in the order of the rows
}

// The mapper learns of an enumeration when it is generated, the tree has it from the start. A predefined type is none,
// whatever the model says.
bool DtCustomCodeTokens::isEnumeration(const DtString& datatype) const
{
    if (myProject != nullptr && myProject->isPredefinedType(datatype))
        return false;
    return mapper().isEnumeration(datatype) ||
           (myTree != nullptr && myTree->getEnumeratedDatatypeNode(datatype) != nullptr);
}

DtString DtCustomCodeTokens::enumerationType() const
{
    const DtString type = "Dt" + DtFirstCharToUpper(myMember.datatype);
    return isEnumeration() ? DtCCompatibleNames::wholeIdentifier(type) : DtString();
}

DtString DtCustomCodeTokens::enumerationRep() const
{
    const DtString& known = mapper().repForEnumName(myMember.datatype);
    if (!known.isEmpty() || !isEnumeration() || myTree == nullptr)
        return known;
    const DtEnumeratedDatatypeNode* const node = myTree->getEnumeratedDatatypeNode(myMember.datatype);
    if (node == nullptr)
        return known;
    const DtString& type = mapper().quorvexType(node->getRepresentation());
    return type.isEmpty() ? mapper().quorvexType(mapper().repOfSimpleType(node->getRepresentation())) : type;
}

DtString DtCustomCodeTokens::nextRepresentation(const DtString& datatype) const
{
    const DtString& ofSimpleType = mapper().repOfSimpleType(datatype);
    if (!ofSimpleType.isEmpty())
        return ofSimpleType;
    const DtEnumeratedDatatypeNode* const node =
        myTree != nullptr ? myTree->getEnumeratedDatatypeNode(datatype) : nullptr;
    return node != nullptr ? node->getRepresentation() : mapper().repOfArrayType(datatype);
}

// A datatype that leads back to itself is its own last representation.
DtString DtCustomCodeTokens::lastRepresentation() const
{
    std::set<DtString> visited = {myMember.datatype};
    DtString last;
    for (DtString next = nextRepresentation(myMember.datatype); !next.isEmpty(); next = nextRepresentation(last))
    {
        if (!visited.insert(next).second)
            return myMember.datatype;
        last = next;
    }
    return last;
}

// The number is looked up in the tree: the mapper learns of an enumeration when it is generated.
DtValueForm DtCustomCodeTokens::valueForm() const
{
    const DtString& datatype = myMember.datatype;
    DtToolkitLayout layout;
    if (myTree != nullptr)
        layout = toolkitLayoutOf(datatype, mapper().quorvexType(datatype), *myTree);
    DtValueForm form = valueFormOf(datatype, encodingOf(datatype, DtString()), layout);
    const DtString representation = lastRepresentation();
    if (layout.element.octets == 0)
        form.number = numberFormOfRepresentation(representation.isEmpty() ? datatype : representation);
    return form;
}

// What a value of the datatype is in C++. The mapper learns which types stand for numbers when it generates.
DtToolkitValue DtCustomCodeTokens::toolkitValue() const
{
    if (myTree == nullptr)
        return toolkitValueOf(mapper().quorvexType(myMember.datatype));
    const DtToolkitValue value = toolkitValueOf(toolkitTypeOf(myMember.datatype, *myTree));
    const bool isNumber = numberOf(myMember.datatype, *myTree).octets != 0;
    return value == DtToolkitValue::None && isNumber ? DtToolkitValue::Number : value;
}

// Enumerations, and what the model defines and no type of the toolkit stands for, get types that know their form.
DtString DtCustomCodeTokens::wireForm() const
{
    const DtString datatype = identifier(myMember.datatype);
    const DtString representation = identifier(lastRepresentation());
    const DtToolkitValue value = toolkitValue();
    const bool isOfModel = myTree != nullptr && isDefined(*myTree, myMember.datatype);
    if (isEnumeration() || (value == DtToolkitValue::None && isOfModel))
        return "DtWireForm()";
    const DtValueForm form = valueForm();
    const DtString call = wireFormCall(form, value);
    return call.isEmpty() ? wireFormOfNames(datatype, representation, form) : call;
}
