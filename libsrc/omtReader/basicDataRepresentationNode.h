#ifndef OMT_READER_BASIC_DATA_REPRESENTATION_NODE_H
#define OMT_READER_BASIC_DATA_REPRESENTATION_NODE_H

#include "omtReader/omtNode.h"

// A basic data representation (IEEE 1516.2-2010, clause 4.13): how a number lies in octets. The size is a text and
// counts bits.
class DtBasicDataRepresentationNode : public DtOMTNode
{
public:
    virtual void setSize(const DtString& size) { mySize = size; }
    virtual const DtString& getSize() const { return mySize; }
    virtual void setEndian(const DtString& endian) { myEndian = endian; }
    virtual const DtString& getEndian() const { return myEndian; }
    virtual void setEncoding(const DtString& encoding) { myEncoding = encoding; }
    virtual const DtString& getEncoding() const { return myEncoding; }
    virtual void setInterpretation(const DtString& interpretation) { myInterpretation = interpretation; }
    virtual const DtString& getInterpretation() const { return myInterpretation; }

private:
    DtString mySize;
    DtString myEndian;
    DtString myEncoding;
    DtString myInterpretation;
};

#endif
