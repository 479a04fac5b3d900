#ifndef OMT_READER_ARRAY_DATATYPE_NODE_H
#define OMT_READER_ARRAY_DATATYPE_NODE_H

#include "omtReader/omtDatatypeNode.h"

#include <vector>

// How the number of elements of an array is told: what getCardinalityType() of an array answers. Behind each kind stand
// the minimum and the maximum that go with it.
enum DtArrayCardinality : int
{
    DtArrayNotDerived = 0,     // -1 and -1: neither encoding nor cardinality was set
    DtArrayFixed = 1,          // the length, twice
    DtArrayBounded = 2,        // a and b of the cardinality "[a..b]"
    DtArrayNullTerminated = 4, // 0 and -1: a terminator ends it
    DtArrayPadded = 5,         // 0 and the padding in bytes
    DtArrayOfBits = 7,         // 0 and -1
    DtArrayLengthless = 8,     // 0 and -1: nothing in it tells where it ends
    DtArrayMultiDim = 9,       // 0 and -1: the lengths of the cardinality "a,b" are in the dimensions
    DtArrayVariable = 10       // 0 and -1: the length stands ahead of the elements
};

// An array datatype (IEEE 1516.2-2010, clause 4.13); its datatype is that of the elements.
//
// Kind and bounds are derived from encoding and cardinality when they are asked for after either was set.
class DtArrayDatatypeNode : public DtOMTDatatypeNode
{
public:
    virtual void setCardinality(const DtString& cardinality);
    virtual const DtString& getCardinality() const { return myCardinality; }
    virtual void setEncoding(const DtString& encoding);
    virtual const DtString& getEncoding() const { return myEncoding; }
    virtual void setDescription(const DtString& description) { myDescription = description; }
    virtual const DtString& getDescription() const { return myDescription; }
    virtual int getCardinalityType() const; // a DtArrayCardinality
    virtual int getCardinalityMinimum() const;
    virtual int getCardinalityMaximum() const;
    // Every derivation of an array of several dimensions appends its dimensions to those already there.
    virtual const std::vector<int>& getMultiDimCardinality() const;
    virtual void setDerivedValues() const;
    // The number that is the first run of digits in the text, with a leading zero in octal; 0 when there is none.
    virtual int extractInteger(const DtString& text) const;

private:
    void deriveIfStale() const;
    void deriveFromFixedEncoding() const;
    void setDimensions() const;
    void setBounds() const;
    void setLength(int length) const;

    DtString myCardinality;
    DtString myEncoding;
    DtString myDescription;
    mutable DtArrayCardinality myKind = DtArrayNotDerived;
    mutable int myCardinalityMinimum = -1;
    mutable int myCardinalityMaximum = -1;
    mutable std::vector<int> myDimensions;
    mutable bool myIsStale = false;
};

#endif
