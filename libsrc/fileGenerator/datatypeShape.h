#ifndef FILE_GENERATOR_DATATYPE_SHAPE_H
#define FILE_GENERATOR_DATATYPE_SHAPE_H

#include "fileGenerator/numberForm.h"
#include "fileGenerator/representationWalk.h"
#include "foundation/string.h"

#include <vector>

class DtOMTTree;

// One number of a datatype of fixed length.
struct DtShapePart
{
    DtString name; // of the field that the number is; empty for elements of arrays
    DtNumberForm form;
    int offset = 0; // in octets from the start of the datatype
};

// A datatype taken apart into numbers: a record of numbers, with records in it and arrays of a fixed number of elements
// (IEEE 1516.2, HLAfixedRecord and HLAfixedArray). Any other datatype has a fault, and what is said of its parts does
// not count.
struct DtDatatypeShape
{
    std::vector<DtShapePart> parts;
    int octets = 0;
    int boundary = 1;
    DtString fault; // what stands in the way, as the rest of a sentence behind "it"
};

// Where a value with this boundary begins behind so many octets.
inline int nextPlace(int octets, int boundary)
{
    return (octets + boundary - 1) / boundary * boundary;
}

// The shape of a datatype. One with more than mostParts numbers is at fault, and so is one that holds itself.
DtDatatypeShape shapeOf(const DtString& datatype, const DtOMTTree& tree, std::size_t mostParts);

// The chain of simple types that begins with the datatype, by the tree; it ends with what is no simple type.
DtRepresentationChain simpleTypesBelow(const DtString& datatype, const DtOMTTree& tree);

// The last of that chain, or the datatype itself when the chain is a ring.
DtString belowSimpleTypes(const DtString& datatype, const DtOMTTree& tree);

// The number that a datatype is, looked up below simple types and enumerations; without octets when it is none.
DtNumberForm numberOf(const DtString& datatype, const DtOMTTree& tree);

// The length of an array, as the wire layer of the toolkit takes it from the encoding and the cardinality.
enum class DtArrayLength
{
    Fixed, // a number of elements that the model gives
    Open,  // counted, ended by a terminator, or up to the end of the value
    None   // bits, padding, and fixed arrays without a number: these hold no elements that could be told apart
};
DtArrayLength lengthOfArray(const DtString& encoding, int elementCount);

// What the toolkit calls the kind of array that an encoding names, such as "DtFixedArray"; empty for those whose kind
// the number of elements or a number in the name decides.
DtString toolkitKindOfArray(const DtString& encoding);

// The octets whose multiple a padding array fills the enclosing record up to, from the bits in a name such as
// "RPRpaddingTo32Array"; 0 for other encodings, and for bits that are no whole octets.
int paddingUnitOf(const DtString& encoding);

#endif
