#ifndef OMT_READER_ENUMERATED_DATATYPE_NODE_H
#define OMT_READER_ENUMERATED_DATATYPE_NODE_H

#include "omtReader/enumerationNode.h"
#include "omtReader/nodeList.h"
#include "omtReader/omtNode.h"

#include <list>

// An enumerated datatype (IEEE 1516.2-2010, clause 4.13). Owns its enumerators, which differ in name and in number.
class DtEnumeratedDatatypeNode : public DtOMTNode
{
public:
    DtEnumeratedDatatypeNode() = default;
    DtEnumeratedDatatypeNode(const DtEnumeratedDatatypeNode& other);
    DtEnumeratedDatatypeNode& operator=(const DtEnumeratedDatatypeNode&) = delete;

    virtual void setDescription(const DtString& description) { myDescription = description; }
    virtual const DtString& getDescription() const { return myDescription; }
    virtual void setRepresentation(const DtString& representation) { myRepresentation = representation; }
    virtual const DtString& getRepresentation() const { return myRepresentation; }

    // Takes the enumerator over and answers true, unless one before it has its name or number: then a warning is
    // written, the node stays with the caller and the answer is false. Null is ignored.
    virtual bool addEnumerationNode(DtEnumerationNode* node);
    // First enumerator with that name or number, null if none.
    virtual DtEnumerationNode* getEnumerationNode(const DtString& name) const { return myEnumerations.find(name); }
    virtual DtEnumerationNode* getEnumerationNode(int number) const { return myNumberIndex.find(number); }
    const std::list<DtEnumerationNode*>& enumerators() const { return myEnumerations.nodes(); }
    virtual std::list<DtEnumerationNode*>::const_iterator getEnumerationNodeList() const;
    virtual std::list<DtEnumerationNode*>::const_iterator getEnumerationNodeEnd() const;
    // Size in bytes, from the representation or else from the end of the name; defaultEnumerationSize if neither tells.
    virtual int getExpectedEnumerationSize() const;

    static int defaultEnumerationSize; // 2 at start

private:
    struct EnumOf
    {
        const DtString& operator()(const DtEnumerationNode& node) const { return node.getEnum(); }
    };
    struct NumberOf
    {
        int operator()(const DtEnumerationNode& node) const { return node.getNumber(); }
    };
    bool isDuplicate(const DtEnumerationNode& node) const;

    DtString myDescription;
    DtString myRepresentation;
    DtNodeList<DtEnumerationNode, EnumOf> myEnumerations;
    DtNodeIndex<DtEnumerationNode, NumberOf> myNumberIndex;
};

#endif
