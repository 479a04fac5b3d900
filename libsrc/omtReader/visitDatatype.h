#ifndef OMT_READER_VISIT_DATATYPE_H
#define OMT_READER_VISIT_DATATYPE_H

#include "omtReader/omtTree.h"

#include <tuple>
#include <type_traits>

// Finds the datatype of a name, whichever family it belongs to.
//
// The tree keeps a list for each family, and a name may stand in several of them: visitDatatype takes the first family
// that knows it, visitEachDatatype all of them. What follows a datatype through the families asks here, so that one
// list tells which families there are and which of them answers first, and so that the compiler lists every place that
// has to learn of a new one.

// How a tree finds the datatypes of one family.
template <typename NodeClass>
struct DtDatatypeLookup
{
    using Node = NodeClass;
    Node* (DtOMTTree::*find)(const DtString& name) const;
};

// All families, in the order in which they are asked for a name.
inline constexpr std::tuple theDatatypeLookups{
    DtDatatypeLookup<DtBasicDataRepresentationNode>{&DtOMTTree::getBasicDataRepresentationNode},
    DtDatatypeLookup<DtSimpleDatatypeNode>{&DtOMTTree::getSimpleDatatypeNode},
    DtDatatypeLookup<DtEnumeratedDatatypeNode>{&DtOMTTree::getEnumeratedDatatypeNode},
    DtDatatypeLookup<DtArrayDatatypeNode>{&DtOMTTree::getArrayDatatypeNode},
    DtDatatypeLookup<DtFixedDatatypeNode>{&DtOMTTree::getFixedDatatypeNode},
    DtDatatypeLookup<DtComplexDatatypeNode>{&DtOMTTree::getComplexDatatypeNode},
    DtDatatypeLookup<DtVariantDatatypeNode>{&DtOMTTree::getVariantDatatypeNode},
    DtDatatypeLookup<DtReferenceDatatypeNode>{&DtOMTTree::getReferenceDatatypeNode},
};

// For the places that ask for the families themselves, in an order of their own: they state how many they know, so that
// the compiler names them too when there is one more.
inline constexpr std::size_t theFamilyCount = std::tuple_size_v<decltype(theDatatypeLookups)>;

// What a visitor gets in place of a node for a name that no family knows.
struct DtUnknownDatatype
{
};

// One visitor out of a function object for each family:
//   visitDatatype(tree, name, DtVisitor{[](const DtArrayDatatypeNode& array) { ... }, ...});
template <typename... Functions>
struct DtVisitor : Functions...
{
    using Functions::operator()...;
};
template <typename... Functions>
DtVisitor(Functions...) -> DtVisitor<Functions...>;

// True when a visitor has an answer for the node of each family ...
template <typename Visitor, typename... Lookups>
constexpr bool DtAnswersAll(const std::tuple<Lookups...>& /*lookups*/)
{
    return (std::is_invocable_v<Visitor&, const typename Lookups::Node&> && ...);
}
template <typename Visitor>
inline constexpr bool theFamiliesAreComplete = DtAnswersAll<Visitor>(theDatatypeLookups);
// ... and for an unknown name too.
template <typename Visitor>
inline constexpr bool theAnswersAreComplete =
    theFamiliesAreComplete<Visitor>&& std::is_invocable_v<Visitor&, DtUnknownDatatype>;

// Calls the visitor with the node of the first family that knows the name, and with a DtUnknownDatatype when none does.
// The answer is the visitor's; all its answers have one type. A visitor without an answer for some family does not
// compile.
template <std::size_t theFirst = 0, typename Visitor>
auto visitDatatype(const DtOMTTree& tree, const DtString& name, Visitor&& visitor)
{
    static_assert(theAnswersAreComplete<Visitor>, "The visitor has no answer for a family of datatypes");
    if constexpr (theFirst == std::tuple_size_v<decltype(theDatatypeLookups)>)
        return visitor(DtUnknownDatatype());
    else
    {
        if (const auto* node = (tree.*std::get<theFirst>(theDatatypeLookups).find)(name))
            return visitor(*node);
        return visitDatatype<theFirst + 1>(tree, name, visitor);
    }
}

// Calls the visitor with the node of every family that knows the name, in order; not at all when none does. The visitor
// answers nothing, and one that leaves a family out does not compile.
template <typename Visitor>
void visitEachDatatype(const DtOMTTree& tree, const DtString& name, Visitor&& visitor)
{
    static_assert(theFamiliesAreComplete<Visitor>, "The visitor leaves out a family of datatypes");
    const auto visitOne = [&](const auto& lookup)
    {
        if (const auto* node = (tree.*lookup.find)(name))
            visitor(*node);
    };
    std::apply([&](const auto&... lookups) { (visitOne(lookups), ...); }, theDatatypeLookups);
}

// True when some family knows the name.
inline bool isDefined(const DtOMTTree& tree, const DtString& name)
{
    bool isKnown = false;
    visitEachDatatype(tree, name, [&isKnown](const DtOMTNode& /*node*/) { isKnown = true; });
    return isKnown;
}

// True when the name is that of an array or a record of any kind, whatever else it may name.
inline bool isComposite(const DtOMTTree& tree, const DtString& name)
{
    bool isOne = false;
    visitEachDatatype(tree, name,
                      DtVisitor{[](const DtBasicDataRepresentationNode&) {}, [](const DtSimpleDatatypeNode&) {},
                                [](const DtEnumeratedDatatypeNode&) {}, [](const DtReferenceDatatypeNode&) {},
                                [&isOne](const DtArrayDatatypeNode&) { isOne = true; },
                                [&isOne](const DtFixedDatatypeNode&) { isOne = true; },
                                [&isOne](const DtComplexDatatypeNode&) { isOne = true; },
                                [&isOne](const DtVariantDatatypeNode&) { isOne = true; }});
    return isOne;
}

#endif
