#ifndef OMT_READER_VARIANT_DATATYPE_NODE_H
#define OMT_READER_VARIANT_DATATYPE_NODE_H

#include "omtReader/nodeList.h"
#include "omtReader/omtDatatypeNode.h"

// An alternative of a variant record, with the text that names the enumerators it stands for.
class DtAlternativeComponentNode : public DtOMTDatatypeNode
{
public:
    virtual void setEnumerator(const DtString& enumerator) { myEnumerator = enumerator; }
    virtual const DtString& getEnumerator() const { return myEnumerator; }
    virtual void setDescription(const DtString& description) { myDescription = description; }
    virtual const DtString& getDescription() const { return myDescription; }

private:
    DtString myEnumerator;
    DtString myDescription;
};

// A variant record (IEEE 1516.2-2010, clause 4.13); its datatype is that of the discriminant. Owns its alternatives.
class DtVariantDatatypeNode : public DtOMTDatatypeNode
{
public:
    virtual void setDescription(const DtString& description) { myDescription = description; }
    virtual const DtString& getDescription() const { return myDescription; }
    virtual void setDiscriminant(const DtString& discriminant) { myDiscriminant = discriminant; }
    virtual const DtString& getDiscriminant() const { return myDiscriminant; }
    virtual void setEncoding(const DtString& encoding) { myEncoding = encoding; }
    virtual const DtString& getEncoding() const { return myEncoding; }

    virtual void addComponentNode(DtAlternativeComponentNode* node) { myComponents.add(node); }
    virtual DtAlternativeComponentNode* getComponentNode(const DtString& name) const { return myComponents.find(name); }
    const std::list<DtAlternativeComponentNode*>& components() const { return myComponents.nodes(); }
    virtual std::list<DtAlternativeComponentNode*>::const_iterator getComponentNodeList() const
    {
        return myComponents.begin();
    }
    virtual std::list<DtAlternativeComponentNode*>::const_iterator getComponentNodeEnd() const
    {
        return myComponents.end();
    }

private:
    DtString myDescription;
    DtString myDiscriminant;
    DtString myEncoding;
    DtNodeList<DtAlternativeComponentNode> myComponents;
};

#endif
