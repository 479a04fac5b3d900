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

    virtual void setUpdateType(const DtString& type) { myUpdateType = type; }
    virtual const DtString& getUpdateType() const { return myUpdateType; }
    virtual void setUpdateCondition(const DtString& condition) { myUpdateCondition = condition; }
    virtual const DtString& getUpdateCondition() const { return myUpdateCondition; }
    virtual void setTransferAccept(const DtString& transferAccept) { myTransferAccept = transferAccept; }
    virtual const DtString& getTransferAccept() const { return myTransferAccept; }
    virtual void setSharing(const DtString& sharing) { mySharing = sharing; }
    virtual const DtString& getSharing() const { return mySharing; }
    virtual void setTransportation(const DtString& transportation) { myTransportation = transportation; }
    virtual const DtString& getTransportation() const { return myTransportation; }
    virtual void setOrder(const DtString& order) { myOrder = order; }
    virtual const DtString& getOrder() const { return myOrder; }
    virtual void addDimension(const DtString& dimension) { myDimensions.push_back(dimension); }
    virtual const std::list<DtString>& getDimensions() const { return myDimensions; }

private:
    DtString myUpdateType;
    DtString myUpdateCondition;
    DtString myTransferAccept;
    DtString mySharing;
    DtString myTransportation;
    DtString myOrder;
    std::list<DtString> myDimensions;
};

#endif
