#include "fileGenerator/datatypeBoundaries.h"

#include "omtReader/visitDatatype.h"

#include <algorithm>
#include <vector>

namespace
{
constexpr int theCountBoundary = 4; // octets of the number of elements that a variable array begins with
constexpr int theUnknownBoundary = 1;

int withCount(int boundary, bool isVariableArray)
{
    return isVariableArray ? std::max(boundary, theCountBoundary) : boundary;
}
} // namespace

// The datatypes from the one asked for to where its boundary comes from. A loop over this, since no chain of datatypes
// may exhaust the stack.
struct DtDatatypeBoundaries::Path
{
    struct Step
    {
        std::string name;
        bool isVariableArray;
    };

    std::vector<Step> steps;
    std::unordered_map<std::string, std::size_t> positions;

    void add(const DtString& name, bool isVariableArray)
    {
        positions.emplace(name.stdString(), steps.size());
        steps.push_back({name.stdString(), isVariableArray});
    }
};

int DtDatatypeBoundaries::of(const DtString& name)
{
    Path path;
    DtString current = name;
    int boundary = theUnknownBoundary;
    while (true)
    {
        const auto known = myKnown.find(current.stdString());
        if (known != myKnown.end())
        {
            boundary = known->second;
            break;
        }
        const auto met = path.positions.find(current.stdString());
        if (met != path.positions.end())
        {
            // All datatypes of the ring are on every way around it, so they share one boundary.
            for (std::size_t at = met->second; at < path.steps.size(); ++at)
                boundary = withCount(boundary, path.steps[at].isVariableArray);
            break;
        }
        const Link link = linkOf(current);
        if (link.isEnd)
        {
            boundary = link.value;
            myKnown.emplace(current.stdString(), boundary);
            break;
        }
        path.add(current, link.isVariableArray);
        current = link.next;
    }
    for (auto step = path.steps.rbegin(); step != path.steps.rend(); ++step)
    {
        boundary = withCount(boundary, step->isVariableArray);
        myKnown.emplace(step->name, boundary);
    }
    return boundary;
}

DtDatatypeBoundaries::Link DtDatatypeBoundaries::linkOf(const DtString& name) const
{
    const auto through = [](const DtString& next) { return Link{false, 0, next, false}; };
    // A record that says nothing of a boundary leaves a variant record of the same name to tell it.
    const auto throughVariant = [&]
    {
        const DtVariantDatatypeNode* variant = myTree.getVariantDatatypeNode(name);
        return variant != nullptr ? through(variant->getDatatype()) : Link();
    };
    return visitDatatype(
        myTree, name,
        DtVisitor{[](const DtBasicDataRepresentationNode& basic) {
                      return Link{true, basic.getSize().toInt() / 8, DtString(), false};
                  },
                  [&](const DtSimpleDatatypeNode& simple) { return through(simple.getRepresentation()); },
                  [&](const DtEnumeratedDatatypeNode& enumerated) { return through(enumerated.getRepresentation()); },
                  [](const DtArrayDatatypeNode& array) {
                      return Link{false, 0, array.getDatatype(), array.getEncoding() == "HLAvariableArray"};
                  },
                  [&](const DtFixedDatatypeNode& record)
                  {
                      const auto& fields = record.components();
                      return fields.empty() ? throughVariant() : through(fields.front()->getDatatype());
                  },
                  [&](const DtComplexDatatypeNode&) { return throughVariant(); },
                  [&](const DtVariantDatatypeNode& variant) { return through(variant.getDatatype()); },
                  [&](const DtReferenceDatatypeNode& reference) { return through(reference.getRepresentation()); },
                  [](DtUnknownDatatype) { return Link(); }});
}
