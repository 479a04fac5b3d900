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
// The idea: each datatype takes its boundary from one other at most, so the datatypes form chains. A look-up follows
// the chain down to a datatype that has a value of its own or is known already, and then goes back up, where each
// variable array raises the value to 4 at least and every datatype on the way is remembered. It is a loop, not a
// recursion, as a model may have chains longer than the stack is deep.
//
// What always holds: a remembered boundary is the one that any other look-up would find, in whichever order the
// datatypes are asked for.
//
// The trap is a ring, a chain that comes back to a datatype met on the way. Worked out on the way back alone, the
// boundaries would depend on where the ring was entered. All its datatypes lie on every way around it, so they share
// one boundary: 4 when there is a variable array among them, 1 otherwise.
//
// The tree is not owned and must not change while this lives.
class DtDatatypeBoundaries
{
public:
    explicit DtDatatypeBoundaries(const DtOMTTree& tree) : myTree(tree) {}

    int of(const DtString& name);

private:
    // A datatype takes its boundary from the next one, or else it is the end of its chain and has the value itself.
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
