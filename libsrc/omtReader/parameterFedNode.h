#ifndef OMT_READER_PARAMETER_FED_NODE_H
#define OMT_READER_PARAMETER_FED_NODE_H

#include "omtReader/datatypeFedNode.h"

// One parameter of an interaction class (IEEE 1516.2-2010, clause 4.5). Its parent is the class. All texts stay as they
// are in the file.
class DtParameterFedNode : public DtDatatypeFedNode
{
public:
    using DtDatatypeFedNode::DtDatatypeFedNode;

    virtual void setSharing(const DtString& sharing) { mySharing = sharing; }
    virtual const DtString& getSharing() const { return mySharing; }
    virtual void setTransportation(const DtString& transportation) { myTransportation = transportation; }
    virtual const DtString& getTransportation() const { return myTransportation; }
    virtual void setOrder(const DtString& order) { myOrder = order; }
    virtual const DtString& getOrder() const { return myOrder; }

private:
    DtString mySharing;
    DtString myTransportation;
    DtString myOrder;
};

#endif
