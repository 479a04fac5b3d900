#ifndef OMT_READER_PARAMETER_FED_NODE_H
#define OMT_READER_PARAMETER_FED_NODE_H

#include "omtReader/datatypeFedNode.h"

// One parameter of an interaction class (IEEE 1516.2-2010, clause 4.5). Its parent is the class. All texts stay as they
// are in the file.
class DtParameterFedNode : public DtDatatypeFedNode
{
public:
    using DtDatatypeFedNode::DtDatatypeFedNode;

    virtual void setSharing(const DtString& sharing) { mySharing = DtSharedText::recent(sharing); }
    virtual const DtString& getSharing() const { return mySharing.get(); }
    virtual void setTransportation(const DtString& transportation)
    {
        myTransportation = DtSharedText::recent(transportation);
    }
    virtual const DtString& getTransportation() const { return myTransportation.get(); }
    virtual void setOrder(const DtString& order) { myOrder = DtSharedText::recent(order); }
    virtual const DtString& getOrder() const { return myOrder.get(); }

private:
    DtSharedText mySharing;
    DtSharedText myTransportation;
    DtSharedText myOrder;
};

#endif
