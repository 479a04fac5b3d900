#ifndef OMT_READER_OMT_DATATYPE_NODE_H
#define OMT_READER_OMT_DATATYPE_NODE_H

#include "omtReader/omtNode.h"

// A node that refers to a datatype by name: an array its elements', a field its own, a tag that of its value.
class DtOMTDatatypeNode : public DtOMTNode
{
public:
    virtual void setDatatype(const DtString& datatype) { myDatatype = datatype; }
    virtual const DtString& getDatatype() const { return myDatatype; }

private:
    DtString myDatatype;
};

#endif
