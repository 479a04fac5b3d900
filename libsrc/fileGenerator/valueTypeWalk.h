#ifndef FILE_GENERATOR_VALUE_TYPE_WALK_H
#define FILE_GENERATOR_VALUE_TYPE_WALK_H

#include "foundation/string.h"

#include <set>

class DtDataTypeMapper;

// Walks from a datatype of the model over array and simple datatypes to a target type.
//
// Objects and interactions walk alike but end differently where there is no target type. A datatype that the walk meets
// twice stands as its own type, in silence. One object serves one walk.
class DtValueTypeWalk
{
public:
    enum class Kind
    {
        // An unknown datatype is its own type, in silence. An array whose elements lead on is followed for its
        // cardinality, the innermost one wins, and is its own type.
        Object,
        // An unknown datatype is warned about. An array is not followed further than to the representation of its
        // elements, so its type may be empty.
        Interaction
    };

    // Both texts are changed by the walk; the cardinality only where the way leads over an array.
    DtValueTypeWalk(Kind kind, DtString& cardinality, DtString& type);
    void run(const DtString& datatype);

private:
    // Each gives the datatype to go on with; false when the type is settled.
    bool next(DtString& datatype);
    bool overSimpleType(DtString& datatype);
    bool overArray(DtString& datatype, const DtString& element);
    bool overElement(DtString& datatype, const DtString& element);

    Kind myKind;
    DtString& myCardinality;
    DtString& myType;
    DtDataTypeMapper& myMapper;
    std::set<DtString> myVisited;
    DtString myFollowedArray; // the outermost; empty when there is none
};

#endif
