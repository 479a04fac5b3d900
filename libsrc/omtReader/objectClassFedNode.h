#ifndef OMT_READER_OBJECT_CLASS_FED_NODE_H
#define OMT_READER_OBJECT_CLASS_FED_NODE_H

#include "omtReader/attributeFedNode.h"
#include "omtReader/classChildren.h"

#include <list>

// One object class (IEEE 1516.2-2010, clause 4.2). Owns its attributes; its subclasses belong to the tree's list of
// object classes.
//
// A copy has copies of the attributes and no subclasses.
class DtObjectClassFedNode : public DtFedNode
{
public:
    using DtFedNode::DtFedNode;
    DtObjectClassFedNode(const DtObjectClassFedNode& other);
    DtObjectClassFedNode& operator=(const DtObjectClassFedNode&) = delete;
    ~DtObjectClassFedNode() override;

    // Takes the attribute over. Of several with one name the list holds all and findAttribute gives the last.
    virtual void addAttribute(DtAttributeFedNode* attribute);
    virtual void associateAttribute(DtAttributeFedNode* attribute); // does nothing
    virtual void addChildObject(DtObjectClassFedNode* child);
    // This class or one below it, by the path rule of DtClassChildren; null if there is none.
    virtual DtObjectClassFedNode* findChildObject(const char* path);
    virtual DtAttributeFedNode* findAttribute(const char* name) const;
    virtual const std::list<DtObjectClassFedNode*>& getChildObjects() const { return myChildren.nodes(); }
    virtual const std::list<DtAttributeFedNode*>& getAttributes() const { return myAttributes; }
    virtual void setDescriptor(const DtString& descriptor) { myDescriptor = descriptor; }
    virtual const DtString& getDescriptor() const { return myDescriptor.get(); }
    virtual void setSharing(const DtString& sharing) { mySharing = DtSharedText::recent(sharing); }
    virtual const DtString& getSharing() const { return mySharing.get(); }
    virtual void setIdentifier(int identifier) { myIdentifier = identifier; }
    virtual int getIdentifier() const { return myIdentifier; }
    virtual void setParentIdentifier(int identifier) { myParentIdentifier = identifier; }
    virtual int getParentIdentifier() const { return myParentIdentifier; }
    // Deletes the attributes. The list keeps a null entry for each.
    virtual void removeAttributes();

private:
    std::list<DtAttributeFedNode*> myAttributes;
    DtClassChildren<DtObjectClassFedNode> myChildren;
    DtSharedText myDescriptor;
    DtSharedText mySharing;
    int myIdentifier = 0;       // number of the class in the OMT text format
    int myParentIdentifier = 0; // and of its superclass there
};

#endif
