#ifndef FILE_GENERATOR_DOCUMENTATION_H
#define FILE_GENERATOR_DOCUMENTATION_H

#include "omtReader/omtTree.h"

#include <map>

// What a model tells people of a class and its members, in the plain words of the model.
struct DtClassDocumentation
{
    DtString ofClass;
    std::map<DtString, DtString> ofMembers; // by their names in the model
};

// Collects what a model tells people of its constructs: semantics first, then units, resolution, accuracy and
// cardinality as far as they say anything, then the texts of the notes that it refers to. Each begins a line; empty
// where the model tells nothing.
//
// Members have the units of their datatype, which stands for a number without a class most often. The tree of the run
// is looked into for that, and for the notes; without one, both are left out.
class DtDocumentation
{
public:
    static DtDocumentation& instance(); // of the run
    // Not owned; null behind the run.
    void setTree(const DtOMTTree* tree) { myTree = tree; }

    DtClassDocumentation of(const DtObjectClassFedNode& node) const;
    DtClassDocumentation of(const DtInteractionClassFedNode& node) const;

    DtString of(const DtBasicDataRepresentationNode& node) const;
    DtString of(const DtSimpleDatatypeNode& node) const;
    DtString of(const DtEnumeratedDatatypeNode& node) const;
    DtString of(const DtEnumerationNode& node) const;
    DtString of(const DtArrayDatatypeNode& node) const;
    DtString of(const DtFixedDatatypeNode& node) const;
    DtString of(const DtFieldComponentNode& node) const;
    DtString of(const DtVariantDatatypeNode& node) const;
    DtString of(const DtAlternativeComponentNode& node) const;
    DtString of(const DtComplexDatatypeNode& node) const;
    DtString of(const DtComplexComponentNode& node) const;

private:
    class DtLines;

    template <typename Member>
    DtString ofMember(const Member& member) const;
    DtString unitsOf(const DtString& datatype) const;

    const DtOMTTree* myTree = nullptr;
};

#endif
