#ifndef OMT_READER_ATTRIBUTE_FED_NODE_H
#define OMT_READER_ATTRIBUTE_FED_NODE_H

#include "omtReader/datatypeFedNode.h"

#include <list>

// One attribute of an object class (IEEE 1516.2-2010, clause 4.4). Its parent is the class. All texts stay as they are
// in the file.
class DtAttributeFedNode : public DtDatatypeFedNode
{
public:
    using DtDatatypeFedNode::DtDatatypeFedNode;

    virtual void setUpdateType(const DtString& type) { myUpdateType = DtSharedText::recent(type); }
    virtual const DtString& getUpdateType() const { return myUpdateType.get(); }
    virtual void setUpdateCondition(const DtString& condition) { myUpdateCondition = DtSharedText::recent(condition); }
    virtual const DtString& getUpdateCondition() const { return myUpdateCondition.get(); }
    virtual void setTransferAccept(const DtString& transferAccept)
    {
        myTransferAccept = DtSharedText::recent(transferAccept);
    }
    virtual const DtString& getTransferAccept() const { return myTransferAccept.get(); }
    virtual void setSharing(const DtString& sharing) { mySharing = DtSharedText::recent(sharing); }
    virtual const DtString& getSharing() const { return mySharing.get(); }
    virtual void setTransportation(const DtString& transportation)
    {
        myTransportation = DtSharedText::recent(transportation);
    }
    virtual const DtString& getTransportation() const { return myTransportation.get(); }
    virtual void setOrder(const DtString& order) { myOrder = DtSharedText::recent(order); }
    virtual const DtString& getOrder() const { return myOrder.get(); }
    virtual void addDimension(const DtString& dimension) { myDimensions.push_back(dimension); }
    virtual const std::list<DtString>& getDimensions() const { return myDimensions; }

private:
    DtSharedText myUpdateType;
    DtSharedText myUpdateCondition;
    DtSharedText myTransferAccept;
    DtSharedText mySharing;
    DtSharedText myTransportation;
    DtSharedText myOrder;
    std::list<DtString> myDimensions;
};

#endif
