#include "fileGenerator/datatypeShape.h"

#include "foundation/stringUtils.h"
#include "omtReader/visitDatatype.h"

#include <algorithm>

namespace
{

constexpr int theMostSteps = 1000; // components looked at, so that records of empty records come to an end
constexpr int theMostDepth = 32;

struct DtArrayRow
{
    const char* encoding;
    DtArrayLength length;
    const char* toolkitKind;
};
const DtArrayRow theArrays[] = {
    {"",                       DtArrayLength::Open,  "DtVariableArray"      },
    {"HLAvariableArray",       DtArrayLength::Open,  "DtVariableArray"      },
    {"HLAfixedArray",          DtArrayLength::Fixed, "DtFixedArray"         },
    {"HLAnullTerminatedArray", DtArrayLength::Open,  "DtNullTerminatedArray"},
    {"NullTerminatedArray",    DtArrayLength::Open,  "DtNullTerminatedArray"},
    {"RPRnullTerminatedArray", DtArrayLength::Open,  "DtNullTerminatedArray"},
    {"HLAlengthlessVarArray",  DtArrayLength::Open,  "DtLengthlessArray"    },
    {"RPRlengthlessArray",     DtArrayLength::Open,  "DtLengthlessArray"    },
    {"HLAbitArray",            DtArrayLength::None,  "DtUnknownArray"       },
    {"BitArray",               DtArrayLength::None,  "DtUnknownArray"       },
};

// The smallest power of two that is not below the length of a number.
int boundaryOf(const DtNumberForm& form)
{
    int boundary = 1;
    while (boundary < form.octets && boundary < 128)
        boundary *= 2;
    return boundary;
}

// Takes a datatype apart, one component after the other. Depth and steps are bounded: a model may be made so that its
// records hold one another in a ring, or branch without end and without a number.
class DtShapeWalk
{
public:
    DtShapeWalk(const DtOMTTree& tree, std::size_t mostParts) : myTree(tree), myMostParts(mostParts) {}

    DtDatatypeShape run(const DtString& datatype) { return of(datatype, DtString(), 0); }

private:
    DtDatatypeShape of(const DtString& datatype, const DtString& field, int depth)
    {
        if (depth > theMostDepth || ++mySteps > theMostSteps)
            return faulty("holds itself or too many records");
        static_assert(theFamilyCount == 8, "A new family of datatypes may have components");
        const DtString name = belowSimpleTypes(datatype, myTree);
        if (const DtFixedDatatypeNode* record = myTree.getFixedDatatypeNode(name))
            return ofRecord(*record, depth);
        if (const DtComplexDatatypeNode* record = myTree.getComplexDatatypeNode(name))
            return ofRecord(*record, depth);
        if (const DtArrayDatatypeNode* array = myTree.getArrayDatatypeNode(name))
            return ofArray(array->getDatatype(), array->getEncoding(), elementCountOf(array->getCardinality()), depth);
        if (const DtReferenceDatatypeNode* reference = myTree.getReferenceDatatypeNode(name))
            return of(reference->getRepresentation(), field, depth + 1);
        return ofNumber(name, field);
    }

    template <typename Record>
    DtDatatypeShape ofRecord(const Record& record, int depth)
    {
        DtDatatypeShape shape;
        for (const auto* component : record.components())
        {
            if (!append(shape, ofComponent(*component, depth)))
                break;
        }
        return shape;
    }

    DtDatatypeShape ofComponent(const DtFieldComponentNode& field, int depth)
    {
        return of(field.getDatatype(), field.getName(), depth + 1);
    }
    // A component of HLA 1.3 can be an array without having a datatype of its own for that.
    DtDatatypeShape ofComponent(const DtComplexComponentNode& component, int depth)
    {
        const DtString& cardinality = component.getCardinality();
        if (cardinality.isEmpty() || cardinality == "1")
            return of(component.getDatatype(), component.getName(), depth + 1);
        return ofArray(component.getDatatype(), "HLAfixedArray", elementCountOf(cardinality), depth);
    }

    DtDatatypeShape ofArray(const DtString& element, const DtString& encoding, int count, int depth)
    {
        if (lengthOfArray(encoding, count) != DtArrayLength::Fixed)
            return faulty("holds an array that is not of fixed length");
        const DtDatatypeShape one = of(element, DtString(), depth + 1);
        DtDatatypeShape shape;
        for (int index = 0; index < count; ++index)
        {
            if (!append(shape, one) || ++mySteps > theMostSteps)
                break;
        }
        return shape;
    }

    DtDatatypeShape ofNumber(const DtString& name, const DtString& field) const
    {
        const DtNumberForm form = numberOf(name, myTree);
        if (form.octets == 0)
            return faulty(field.isEmpty() ? DtString("holds something that is no number")
                                          : "has a member " + field + " that is no number");
        DtDatatypeShape shape;
        shape.parts.push_back({field, form, 0});
        shape.octets = form.octets;
        shape.boundary = boundaryOf(form);
        return shape;
    }

    // Puts a member behind those that are there, at its boundary. False when the shape is at fault then.
    bool append(DtDatatypeShape& shape, const DtDatatypeShape& member) const
    {
        const int start = nextPlace(shape.octets, member.boundary);
        for (DtShapePart part : member.parts)
        {
            part.offset += start;
            shape.parts.push_back(part);
        }
        shape.octets = start + member.octets;
        shape.boundary = std::max(shape.boundary, member.boundary);
        shape.fault = member.fault;
        if (shape.fault.isEmpty() && shape.parts.size() > myMostParts)
            shape.fault = "has more than " + DtString(static_cast<int>(myMostParts)) + " members";
        return shape.fault.isEmpty();
    }

    static DtDatatypeShape faulty(const DtString& fault)
    {
        DtDatatypeShape shape;
        shape.fault = fault;
        return shape;
    }

    const DtOMTTree& myTree;
    std::size_t myMostParts;
    int mySteps = 0;
};

} // namespace

DtDatatypeShape shapeOf(const DtString& datatype, const DtOMTTree& tree, std::size_t mostParts)
{
    return DtShapeWalk(tree, mostParts).run(datatype);
}

DtRepresentationChain simpleTypesBelow(const DtString& datatype, const DtOMTTree& tree)
{
    return followRepresentations(datatype,
                                 [&tree](const DtString& name)
                                 {
                                     const DtSimpleDatatypeNode* simple = tree.getSimpleDatatypeNode(name);
                                     return simple != nullptr ? simple->getRepresentation() : DtString();
                                 });
}

DtString belowSimpleTypes(const DtString& datatype, const DtOMTTree& tree)
{
    const DtRepresentationChain chain = simpleTypesBelow(datatype, tree);
    return chain.isRing ? datatype : chain.names.back();
}

DtNumberForm numberOf(const DtString& datatype, const DtOMTTree& tree)
{
    DtString name = belowSimpleTypes(datatype, tree);
    if (const DtEnumeratedDatatypeNode* enumeration = tree.getEnumeratedDatatypeNode(name))
        name = belowSimpleTypes(enumeration->getRepresentation(), tree);
    return isComposite(tree, name) ? DtNumberForm() : numberFormOfRepresentation(name);
}

DtArrayLength lengthOfArray(const DtString& encoding, int elementCount)
{
    if (DtContainsSubstring(encoding, "addingTo"))
        return DtArrayLength::None;
    DtArrayLength length = elementCount > 0 ? DtArrayLength::Fixed : DtArrayLength::Open;
    for (const DtArrayRow& row : theArrays)
        if (encoding == row.encoding)
            length = row.length;
    return length == DtArrayLength::Fixed && elementCount < 0 ? DtArrayLength::None : length;
}

DtString toolkitKindOfArray(const DtString& encoding)
{
    for (const DtArrayRow& row : theArrays)
        if (encoding == row.encoding)
            return row.toolkitKind;
    return DtString();
}

int paddingUnitOf(const DtString& encoding)
{
    constexpr int theBound = 100000; // far beyond any number of bits
    const std::string& text = encoding.stdString();
    const std::size_t start = text.find("addingTo");
    if (start == std::string::npos)
        return 0;
    std::size_t at = std::min(text.find_first_of("0123456789", start), text.size());
    int bits = 0;
    for (; at < text.size() && DtIsDigit(text[at]) && bits < theBound; ++at)
        bits = bits * 10 + (text[at] - '0');
    return bits % 8 == 0 ? bits / 8 : 0;
}
