#ifndef OMT_READER_FIXED_DATATYPE_NODE_H
#define OMT_READER_FIXED_DATATYPE_NODE_H

#include "omtReader/nodeList.h"
#include "omtReader/omtDatatypeNode.h"

// A field of a fixed record.
class DtFieldComponentNode : public DtOMTDatatypeNode
{
public:
    virtual void setDescription(const DtString& description) { myDescription = description; }
    virtual const DtString& getDescription() const { return myDescription; }

private:
    DtString myDescription;
};

// A fixed record (IEEE 1516.2-2010, clause 4.13). Owns its fields, which lie in a value in their order.
class DtFixedDatatypeNode : public DtOMTNode
{
public:
    virtual void setDescription(const DtString& description) { myDescription = description; }
    virtual const DtString& getDescription() const { return myDescription; }
    virtual void setEncoding(const DtString& encoding) { myEncoding = encoding; }
    virtual const DtString& getEncoding() const { return myEncoding; }

    virtual void addComponentNode(DtFieldComponentNode* node) { myComponents.add(node); }
    virtual DtFieldComponentNode* getComponentNode(const DtString& name) const { return myComponents.find(name); }
    const std::list<DtFieldComponentNode*>& components() const { return myComponents.nodes(); }
    virtual std::list<DtFieldComponentNode*>::const_iterator getComponentNodeList() const
    {
        return myComponents.begin();
    }
    virtual std::list<DtFieldComponentNode*>::const_iterator getComponentNodeEnd() const { return myComponents.end(); }

private:
    DtString myDescription;
    DtString myEncoding;
    DtNodeList<DtFieldComponentNode> myComponents;
};

#endif
