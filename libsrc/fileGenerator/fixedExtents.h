#ifndef FILE_GENERATOR_FIXED_EXTENTS_H
#define FILE_GENERATOR_FIXED_EXTENTS_H

#include "foundation/string.h"

#include <map>

class DtFixedDatatypeNode;
class DtOMTTree;

// How much room each value of a datatype takes on the wire, where it is the same for all of them.
struct DtFixedExtent
{
    int octets = 0; // 0: not the same, or nobody knows
    int boundary = 1;
};

// The fixed records of the present run whose values all have the same octets, so that generated code can put each field
// at a place that is known while it is compiled: records of numbers, of enumerations, of the toolkit's records of
// numbers, and of such records.
//
// Asked for while datatype files are written, when it is known which datatypes get a class, and which are those of the
// toolkit; it asks the mapper and changes nothing there. The driver clears this at the start of a run.
class DtFixedExtents
{
public:
    static DtFixedExtents& instance();

    void clear() { myRecords.clear(); }
    // The extent of a record that gets a class.
    DtFixedExtent ofRecord(const DtFixedDatatypeNode& record, const DtOMTTree& tree);

private:
    DtFixedExtent ofFields(const DtFixedDatatypeNode& record, const DtOMTTree& tree);
    DtFixedExtent ofField(const DtString& datatype, const DtOMTTree& tree);

    std::map<DtString, DtFixedExtent> myRecords; // those that are being worked out are not the same for all
    int myDepth = 0;
};

#endif
