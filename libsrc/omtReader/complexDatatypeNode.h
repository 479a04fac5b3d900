#ifndef OMT_READER_COMPLEX_DATATYPE_NODE_H
#define OMT_READER_COMPLEX_DATATYPE_NODE_H

#include "omtReader/complexComponentNode.h"
#include "omtReader/nodeList.h"

// A complex datatype: the record of the OMT text format. Owns its components.
class DtComplexDatatypeNode : public DtOMTNode
{
public:
    virtual void addComponentNode(DtComplexComponentNode* node) { myComponents.add(node); }
    virtual DtComplexComponentNode* getComponentNode(const DtString& name) const { return myComponents.find(name); }
    const std::list<DtComplexComponentNode*>& components() const { return myComponents.nodes(); }
    virtual std::list<DtComplexComponentNode*>::const_iterator getComponentNodeList() const
    {
        return myComponents.begin();
    }
    virtual std::list<DtComplexComponentNode*>::const_iterator getComponentNodeEnd() const
    {
        return myComponents.end();
    }

private:
    DtNodeList<DtComplexComponentNode> myComponents;
};

#endif
