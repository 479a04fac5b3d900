#ifndef FILE_GENERATOR_NUMBER_FORM_H
#define FILE_GENERATOR_NUMBER_FORM_H

#include "foundation/string.h"

class DtOMTTree;

// How the number that a datatype ends at lies on the wire, for the templates that have to write it. Boundaries and
// sizes of the mapper answer the tokens that are called so; these answer the octets.
struct DtNumberForm
{
    int octets = 0; // 0 when neither the model nor a name tells
    bool isFloat = false;
    bool isSigned = false;
    bool isLittleEndian = false;
};

// These ask what the name of a representation tells. "Float" makes a fraction; a sign comes with "integer" where no
// "unsigned" stands in the name.
bool isFloatRepresentation(const DtString& representation);
bool isSignedRepresentation(const DtString& representation);

// The form of a basic representation, or of a name that a ready-made type stands for. Size and byte order come from the
// model's table; where it has no entry, from the type and the end of the name. A byte order that the model leaves out
// is little for names that end in "LE" and big for all others; "Big" and "Little" count in any case and with blanks
// around, and any other text is big.
DtNumberForm numberFormOfRepresentation(const DtString& representation);
// The form of the last representation below a datatype, or of the datatype itself when nothing is below it.
DtNumberForm numberFormOf(const DtString& datatype);
// The C++ number that holds every value of the form; "DtU8" for an unknown one.
DtString numberTypeOf(const DtNumberForm& form);

// Warns of each basic representation whose byte order is a text that says neither big nor little. Once for each type
// and text: both roads ask for it at the start of a run.
void warnOfByteOrders(const DtOMTTree& tree);

// The number of elements of a fixed array, from the text of its cardinality: "4", or the product for "3,4". -1 when the
// text leaves it open.
int elementCountOf(const DtString& cardinality);

#endif
