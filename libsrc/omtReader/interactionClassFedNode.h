#ifndef OMT_READER_INTERACTION_CLASS_FED_NODE_H
#define OMT_READER_INTERACTION_CLASS_FED_NODE_H

#include "omtReader/classChildren.h"
#include "omtReader/parameterFedNode.h"

#include <list>

// One interaction class (IEEE 1516.2-2010, clause 4.3). Owns its parameters; its subclasses belong to the tree's list
// of interaction classes.
//
// A copy has copies of the parameters and no subclasses.
class DtInteractionClassFedNode : public DtFedNode
{
public:
    using DtFedNode::DtFedNode;
    DtInteractionClassFedNode(const DtInteractionClassFedNode& other);
    DtInteractionClassFedNode& operator=(const DtInteractionClassFedNode&) = delete;
    ~DtInteractionClassFedNode() override;

    // Takes the parameter over. Of several with one name the list holds all and findParameter gives the first, unlike
    // the attributes of an object class.
    virtual void addParameter(DtParameterFedNode* parameter);
    virtual void addChildInteraction(DtInteractionClassFedNode* child);
    // This class or one below it, by the path rule of DtClassChildren; null if there is none.
    virtual DtInteractionClassFedNode* findChildInteraction(const char* path);
    virtual DtParameterFedNode* findParameter(const char* name) const;
    virtual const std::list<DtInteractionClassFedNode*>& getChildInteractions() const { return myChildren.nodes(); }
    virtual const std::list<DtParameterFedNode*>& getParameters() const { return myParameters; }
    virtual void setDescriptor(const DtString& descriptor) { myDescriptor = descriptor; }
    virtual const DtString& getDescriptor() const { return myDescriptor.get(); }
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
    virtual void setIdentifier(int identifier) { myIdentifier = identifier; }
    virtual int getIdentifier() const { return myIdentifier; }
    virtual void setParentIdentifier(int identifier) { myParentIdentifier = identifier; }
    virtual int getParentIdentifier() const { return myParentIdentifier; }
    // Deletes the parameters. The list keeps a null entry for each.
    virtual void removeParameters();

private:
    std::list<DtParameterFedNode*> myParameters;
    DtClassChildren<DtInteractionClassFedNode> myChildren;
    DtSharedText myDescriptor;
    DtSharedText mySharing;
    DtSharedText myTransportation;
    DtSharedText myOrder;
    std::list<DtString> myDimensions;
    int myIdentifier = 0;       // number of the class in the OMT text format
    int myParentIdentifier = 0; // and of its superclass there
};

#endif
