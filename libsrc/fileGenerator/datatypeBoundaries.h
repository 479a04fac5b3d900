#ifndef FILE_GENERATOR_DATATYPE_BOUNDARIES_H
#define FILE_GENERATOR_DATATYPE_BOUNDARIES_H

#include "foundation/string.h"

#include <string>
#include <unordered_map>

class DtOMTTree;

// The alignment of datatypes in octets, as the context of a command file tells it. The first row that has the name
// decides:
//   basic representation    its size in bits, divided by 8
//   simple, enumerated      that of the representation
//   array                   that of the elements; 4 for "HLAvariableArray" when that is below 4
//   fixed record            that of its first field; the others are not looked at
//   variant record          that of the discriminant
//   anything else           1, also a record without fields and a name met again on the way
//
// Boundaries are remembered: the tree, which is not owned, must not change while this lives.
class DtDatatypeBoundaries
{
public:
    explicit DtDatatypeBoundaries(const DtOMTTree& tree) : myTree(tree) {}

    int of(const DtString& name);

private:
    // What a datatype takes its boundary from: another one, or nothing, and then the value stands here.
    struct Link
    {
        bool isEnd = true;
        int value = 1;
        DtString next;
        bool isVariableArray = false;
    };
    struct Path;

    Link linkOf(const DtString& name) const;

    const DtOMTTree& myTree;
    std::unordered_map<std::string, int> myKnown;
};

#endif
