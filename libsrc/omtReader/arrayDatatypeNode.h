#ifndef OMT_READER_ARRAY_DATATYPE_NODE_H
#define OMT_READER_ARRAY_DATATYPE_NODE_H

#include "omtReader/omtDatatypeNode.h"

#include <vector>

// An array datatype; its datatype is that of the elements.
//
// Type and bounds are derived from encoding and cardinality when they are asked for after either was set:
//   type  array
//   1     of fixed length                          minimum and maximum are the length
//   2     of fixed encoding with bounds "[a..b]"   a and b
//   4     ended by a terminator                    0 and -1
//   5     padded                                   0 and the padding in bytes
//   7     of bits                                  0 and -1
//   8     without a length                         0 and -1
//   9     of several dimensions "a,b"              0 and -1, lengths in the dimensions
//   10    with its length ahead                    0 and -1
class DtArrayDatatypeNode : public DtOMTDatatypeNode
{
public:
    virtual void setCardinality(const DtString& cardinality);
    virtual const DtString& getCardinality() const { return myCardinality; }
    virtual void setEncoding(const DtString& encoding);
    virtual const DtString& getEncoding() const { return myEncoding; }
    virtual void setDescription(const DtString& description) { myDescription = description; }
    virtual const DtString& getDescription() const { return myDescription; }
    virtual int getCardinalityType() const;
    virtual int getCardinalityMinimum() const;
    virtual int getCardinalityMaximum() const;
    // Every derivation of a type 9 appends its dimensions to those already there.
    virtual const std::vector<int>& getMultiDimCardinality() const;
    virtual void setDerivedValues() const;
    // The first run of digits in the text, with a leading zero in octal; 0 when there is none.
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
    mutable int myCardinalityType = 0;
    mutable int myCardinalityMinimum = -1;
    mutable int myCardinalityMaximum = -1;
    mutable std::vector<int> myDimensions;
    mutable bool myIsStale = false;
};

#endif
