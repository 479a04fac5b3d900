// Datatypes in the context of DtOMTWriter.

#include "fileGenerator/contextRow.h"
#include "fileGenerator/omtWriter.h"
#include "fileGenerator/progressMeter.h"
#include "omtReader/omtTree.h"

#include <algorithm>

namespace
{
constexpr DtKeyForm Plain = DtKeyForm::Plain;
constexpr DtKeyForm Text = DtKeyForm::Text;
constexpr DtKeyForm Name = DtKeyForm::Name;

bool isCancelled()
{
    return DtProgressMeter::current()->isCancelled();
}

// The target type of the datatype that the getter gives.
template <auto Getter, typename Node>
DtContextValue typeIfAny(const Node& node, DtOMTWriter& writer)
{
    const DtString* type = writer.typeOf((node.*Getter)());
    return type != nullptr ? DtContextValue(*type) : std::nullopt;
}

using Basic = DtBasicDataRepresentationNode;
const DtContextRow<Basic> theBasicRows[] = {
    {"RepresentationName",           got<&Basic::getName>,           Text },
    {"RepresentationEncoding",       got<&Basic::getEncoding>,       Text },
    {"RepresentationEndian",         got<&Basic::getEndian>,         Text },
    {"RepresentationInterpretation", got<&Basic::getInterpretation>, Text },
    {"RepresentationNote",           got<&Basic::getNote>,           Text },
    {"RepresentationSize",           got<&Basic::getSize>,           Text },
    {"RepresentationBoundary",       boundaryOf<&Basic::getName>,    Plain},
    {"RepresentationType",           typeIfAny<&Basic::getName>,     Text },
};

using Simple = DtSimpleDatatypeNode;
const DtContextRow<Simple> theSimpleRows[] = {
    {"SimpleName",           got<&Simple::getName>,                  Text },
    {"SimpleType",           typeIfAny<&Simple::getRepresentation>,  Text },
    {"SimpleRepresentation", got<&Simple::getRepresentation>,        Text },
    {"SimpleBoundary",       boundaryOf<&Simple::getRepresentation>, Plain},
    {"SimpleUnits",          got<&Simple::getUnits>,                 Text },
    {"SimpleAccuracy",       got<&Simple::getAccuracy>,              Text },
    {"SimpleResolution",     got<&Simple::getResolution>,            Text },
    {"SimpleDescription",    got<&Simple::getDescription>,           Text },
};

using Reference = DtReferenceDatatypeNode;
const DtContextRow<Reference> theReferenceRows[] = {
    {"ReferenceName",           got<&Reference::getName>,                  Text },
    {"ReferenceRepresentation", got<&Reference::getRepresentation>,        Text },
    {"ReferenceBoundary",       boundaryOf<&Reference::getRepresentation>, Plain},
    {"ReferenceClass",          got<&Reference::getReferenceClass>,        Text },
    {"ReferenceAttribute",      got<&Reference::getReferencedAttribute>,   Text },
    {"ReferenceDescription",    got<&Reference::getDescription>,           Text },
};

using Complex = DtComplexDatatypeNode;
const DtContextRow<Complex> theComplexRows[] = {
    {"ComplexName", got<&Complex::getName>, Name},
    {"ComplexNote", got<&Complex::getNote>, Text},
};

using Component = DtComplexComponentNode;
const DtContextRow<Component> theComponentRows[] = {
    {"ComponentName",               got<&Component::getName>,                 Name },
    {"ComponentAccuracy",           got<&Component::getAccuracy>,             Text },
    {"ComponentAccuracyCondition",  got<&Component::getAccuracyCondition>,    Text },
    {"ComponentCardinality",        got<&Component::getCardinality>,          Text },
    {"ComponentCardinalityMaximum", got<&Component::getCardinalityMaximum>,   Plain},
    {"ComponentCardinalityMinimum", got<&Component::getCardinalityMinimum>,   Plain},
    {"ComponentCardinalityType",    got<&Component::getCardinalityType>,      Plain},
    {"ComponentConditional",        got<&Component::getConditionalComponent>, Text },
    {"ComponentConditionalValue",   got<&Component::getConditionalValue>,     Text },
    {"ComponentNote",               got<&Component::getNote>,                 Text },
};

using Enumerated = DtEnumeratedDatatypeNode;
DtContextValue enumerationType(const Enumerated& node, DtOMTWriter& writer)
{
    const DtString* type = writer.typeOf(node.getRepresentation());
    return type != nullptr ? *type : writer.replacedType(node);
}

const DtContextRow<Enumerated> theEnumerationRows[] = {
    {"EnumerationName",           got<&Enumerated::getName>,                  Name },
    {"EnumerationDescription",    got<&Enumerated::getDescription>,           Text },
    {"EnumerationNote",           got<&Enumerated::getNote>,                  Text },
    {"EnumerationRepresentation", got<&Enumerated::getRepresentation>,        Name },
    {"EnumerationBoundary",       boundaryOf<&Enumerated::getRepresentation>, Plain},
    {"EnumerationType",           enumerationType,                            Text },
};

const DtContextRow<DtEnumerationNode> theEnumeratorRows[] = {
    {"EnumeratorName",   got<&DtEnumerationNode::getEnum>,    Name },
    {"EnumeratorValue",  got<&DtEnumerationNode::getNumber>,  Plain},
    {"EnumeratorNumber", got<&DtEnumerationNode::numberText>, Plain},
};

// The elements of a variable array follow a number of four octets, and behind that those that are aligned to more.
using Array = DtArrayDatatypeNode;
DtContextValue arrayPadding(const Array& node, DtOMTWriter& writer)
{
    const bool isPadded = node.getEncoding() == "HLAvariableArray" && writer.getBoundary(node.getDatatype()) > 4;
    return isPadded ? DtContextValue("4") : std::nullopt;
}

const DtContextRow<Array> theArrayRows[] = {
    {"ArrayName",           got<&Array::getName>,               Name },
    {"ArrayEncoding",       got<&Array::getEncoding>,           Name },
    {"ArrayDatatype",       got<&Array::getDatatype>,           Name },
    {"ArrayCardinality",    got<&Array::getCardinality>,        Text },
    {"ArrayCardinalityMin", got<&Array::getCardinalityMinimum>, Plain},
    {"ArrayCardinalityMax", got<&Array::getCardinalityMaximum>, Plain},
    {"ArrayDescription",    got<&Array::getDescription>,        Text },
    {"ArrayNote",           got<&Array::getNote>,               Text },
    {"ArrayPadding",        arrayPadding,                       Plain},
};

using Fixed = DtFixedDatatypeNode;
const DtContextRow<Fixed> theFixedRows[] = {
    {"FixedRecName",        got<&Fixed::getName>,        Name },
    {"FixedRecEncoding",    got<&Fixed::getEncoding>,    Name },
    {"FixedRecDescription", got<&Fixed::getDescription>, Text },
    {"FixedRecNote",        got<&Fixed::getNote>,        Text },
    {"FixedBoundary",       boundaryOf<&Fixed::getName>, Plain},
};

using Field = DtFieldComponentNode;
const DtContextRow<Field> theFieldRows[] = {
    {"FieldName",        got<&Field::getName>,        Name},
    {"FieldDatatype",    got<&Field::getDatatype>,    Name},
    {"FieldDescription", got<&Field::getDescription>, Text},
    {"FieldNote",        got<&Field::getNote>,        Text},
};

using Variant = DtVariantDatatypeNode;
// What the boundary of the alternatives goes beyond that of the discriminant, or the latter when none does.
DtContextValue variantPadding(const Variant& node, DtOMTWriter& writer)
{
    const int discriminant = writer.getBoundary(node.getDatatype());
    int greatest = 0;
    for (const DtAlternativeComponentNode* part : node.components())
        greatest = std::max(greatest, writer.getBoundary(part->getDatatype()));
    return DtString(greatest > discriminant ? greatest - discriminant : discriminant);
}

const DtContextRow<Variant> theVariantRows[] = {
    {"VariantName",         got<&Variant::getName>,            Name },
    {"VariantEncoding",     got<&Variant::getEncoding>,        Name },
    {"VariantDiscriminant", got<&Variant::getDiscriminant>,    Name },
    {"VariantDatatype",     got<&Variant::getDatatype>,        Name },
    {"VariantBoundary",     boundaryOf<&Variant::getDatatype>, Plain},
    {"VariantDescription",  got<&Variant::getDescription>,     Text },
    {"VariantNote",         got<&Variant::getNote>,            Text },
    {"VariantPadding",      variantPadding,                    Plain},
};

using Alternative = DtAlternativeComponentNode;
const DtContextRow<Alternative> theAlternativeRows[] = {
    {"AlternativeName",        got<&Alternative::getName>,        Name},
    {"AlternativeEnumerator",  got<&Alternative::getEnumerator>,  Name},
    {"AlternativeDatatype",    got<&Alternative::getDatatype>,    Name},
    {"AlternativeDescription", got<&Alternative::getDescription>, Text},
    {"AlternativeNote",        got<&Alternative::getNote>,        Text},
};

// The parts of a datatype, each with its rows and what its own datatype tells under the prefix.
template <typename Record, typename Part, std::size_t N>
std::unique_ptr<DtMapSubstitute> partsOf(const Record& record, const DtContextRow<Part> (&rows)[N], const char* prefix,
                                         DtOMTWriter& writer)
{
    auto parts = std::make_unique<DtMapSubstitute>();
    for (const Part* part : record.components())
    {
        DtMapSubstitute& entry = parts->putMap(part->getName());
        DtPutRows(rows, *part, writer, entry);
        writer.getType(prefix, part->getDatatype(), &entry);
    }
    return parts;
}

std::unique_ptr<DtMapSubstitute> enumeratorsOf(const Enumerated& node, DtOMTWriter& writer)
{
    auto enumerators = std::make_unique<DtMapSubstitute>();
    for (const DtEnumerationNode* each : node.enumerators())
        DtPutRows(theEnumeratorRows, *each, writer, enumerators->putMap(each->getEnum()));
    return enumerators;
}

// One that no model has, put in for those who need the octet as a datatype.
Simple octetDatatype()
{
    Simple octet;
    octet.setName("HLAoctet");
    octet.setRepresentation("HLAoctet");
    octet.setUnits("n/a");
    octet.setAccuracy("n/a");
    octet.setResolution("n/a");
    octet.setDescription("Datatype to match representation only, added internally not present in FOM");
    return octet;
}
} // namespace

void DtAddDatatypeKeys(std::vector<DtContextKey>& keys)
{
    DtContextKeyList(keys, "Representations").add(theBasicRows);
    DtContextKeyList(keys, "SimpleDatatypes").add(theSimpleRows);
    DtContextKeyList(keys, "References").add(theReferenceRows);
    DtContextKeyList(keys, "ComplexDatatypes").add(theComplexRows).addList("NumComponents", "Components");
    DtContextKeyList(keys, "Components").add(theComponentRows).addType("Component");
    DtContextKeyList(keys, "Enumerations").add(theEnumerationRows).addList("NumEnumerators", "Enumerators");
    DtContextKeyList(keys, "Enumerators").add(theEnumeratorRows);
    DtContextKeyList(keys, "Arrays").add(theArrayRows).addType("Array");
    DtContextKeyList(keys, "FixedRecords").add(theFixedRows).addList("NumFields", "Fields");
    DtContextKeyList(keys, "Fields").add(theFieldRows).addType("Field");
    DtContextKeyList(keys, "VariantRecords")
        .add(theVariantRows)
        .addType("Variant")
        .addList("NumAlternatives", "Alternatives");
    DtContextKeyList(keys, "Alternatives").add(theAlternativeRows).addType("Alternative");
}

DtMapSubstitute* DtOMTWriter::getRepresentationsContext()
{
    auto list = std::make_unique<DtMapSubstitute>();
    for (const Basic* node : tree().basicDataRepresentations())
        DtPutRows(theBasicRows, *node, *this, list->putMap(node->getName()));
    return list.release();
}

DtMapSubstitute* DtOMTWriter::getSimpleContext()
{
    auto list = std::make_unique<DtMapSubstitute>();
    for (const Simple* node : tree().simpleDatatypes())
        putSimple(*node, *list);
    putSimple(octetDatatype(), *list);
    return list.release();
}

// A datatype whose representation has no type gets the representation itself, for the members that come later.
void DtOMTWriter::putSimple(const DtSimpleDatatypeNode& node, DtMapSubstitute& list)
{
    DtPutRows(theSimpleRows, node, *this, list.putMap(node.getName()));
    if (typeOf(node.getRepresentation()) == nullptr)
        myTypes[node.getName()] = node.getRepresentation();
}

DtMapSubstitute* DtOMTWriter::getComplexContext()
{
    auto list = std::make_unique<DtMapSubstitute>();
    for (const Complex* node : tree().complexDatatypes())
    {
        if (!isUsed(*node))
            continue;
        DtMapSubstitute& entry = list->putMap(node->getName());
        DtPutRows(theComplexRows, *node, *this, entry);
        DtPutList(entry, "NumComponents", "Components", partsOf(*node, theComponentRows, "Component", *this));
    }
    return list.release();
}

DtMapSubstitute* DtOMTWriter::getEnumerationsContext()
{
    auto list = std::make_unique<DtMapSubstitute>();
    for (const Enumerated* node : tree().enumeratedDatatypes())
    {
        if (isUsed(*node))
            putEnumeration(*node, *list);
    }
    return list.release();
}

// The type that stands in for a representation without one comes in as a second representation, which a look-up does
// not find: only a walk over all keys does.
void DtOMTWriter::putEnumeration(const DtEnumeratedDatatypeNode& node, DtMapSubstitute& list)
{
    DtMapSubstitute& entry = list.putMap(node.getName());
    DtPutRows(theEnumerationRows, node, *this, entry);
    if (typeOf(node.getRepresentation()) == nullptr)
        DtPutValue(entry, "EnumerationRepresentation", replacedType(node), Name);
    DtPutList(entry, "NumEnumerators", "Enumerators", enumeratorsOf(node, *this));
}

DtMapSubstitute* DtOMTWriter::getArrayContext()
{
    auto list = std::make_unique<DtMapSubstitute>();
    for (const Array* node : tree().arrayDatatypes())
    {
        if (isCancelled())
            break;
        if (!isUsed(*node))
            continue;
        DtMapSubstitute& entry = list->putMap(node->getName());
        DtPutRows(theArrayRows, *node, *this, entry);
        getType("Array", node->getDatatype(), &entry);
    }
    return list.release();
}

DtMapSubstitute* DtOMTWriter::getFixedContext()
{
    auto list = std::make_unique<DtMapSubstitute>();
    for (const Fixed* node : tree().fixedDatatypes())
    {
        if (isCancelled())
            break;
        if (!isUsed(*node))
            continue;
        DtMapSubstitute& entry = list->putMap(node->getName());
        DtPutRows(theFixedRows, *node, *this, entry);
        DtPutList(entry, "NumFields", "Fields", partsOf(*node, theFieldRows, "Field", *this));
    }
    return list.release();
}

DtMapSubstitute* DtOMTWriter::getVariantContext()
{
    auto list = std::make_unique<DtMapSubstitute>();
    for (const Variant* node : tree().variantDatatypes())
    {
        if (isCancelled())
            break;
        if (!isUsed(*node))
            continue;
        DtMapSubstitute& entry = list->putMap(node->getName());
        DtPutRows(theVariantRows, *node, *this, entry);
        getType("Variant", node->getDatatype(), &entry);
        DtPutList(entry, "NumAlternatives", "Alternatives", partsOf(*node, theAlternativeRows, "Alternative", *this));
    }
    return list.release();
}

DtMapSubstitute* DtOMTWriter::getReferenceContext()
{
    auto list = std::make_unique<DtMapSubstitute>();
    for (const Reference* node : tree().referenceDatatypes())
    {
        if (isUsed(*node))
            DtPutRows(theReferenceRows, *node, *this, list->putMap(node->getName()));
    }
    return list.release();
}
