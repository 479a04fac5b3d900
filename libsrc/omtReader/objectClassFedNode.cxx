#include "omtReader/objectClassFedNode.h"

DtObjectClassFedNode::DtObjectClassFedNode(const DtObjectClassFedNode& other)
    : DtFedNode(other),
      myDescriptor(other.myDescriptor),
      mySharing(other.mySharing),
      myIdentifier(other.myIdentifier),
      myParentIdentifier(other.myParentIdentifier)
{
    for (const DtAttributeFedNode* attribute : other.myAttributes)
        if (attribute != nullptr)
            DtObjectClassFedNode::addAttribute(new DtAttributeFedNode(*attribute));
}

DtObjectClassFedNode::~DtObjectClassFedNode()
{
    for (DtAttributeFedNode* attribute : myAttributes)
        delete attribute;
}

void DtObjectClassFedNode::addAttribute(DtAttributeFedNode* attribute)
{
    if (attribute == nullptr)
        return;
    attribute->setParentObject(this);
    myAttributes.push_back(attribute);
    myAttributeIndex[attribute->getName()] = attribute;
}

void DtObjectClassFedNode::associateAttribute(DtAttributeFedNode* /*attribute*/)
{
}

void DtObjectClassFedNode::addChildObject(DtObjectClassFedNode* child)
{
    if (child == nullptr)
        return;
    child->setParentObject(this);
    myChildren.add(child);
}

DtObjectClassFedNode* DtObjectClassFedNode::findChildObject(const char* path)
{
    return myChildren.find(
        this, DtString(path).stdString(), [](const DtObjectClassFedNode& node) -> auto& { return node.myChildren; });
}

DtAttributeFedNode* DtObjectClassFedNode::findAttribute(const char* name) const
{
    const auto found = myAttributeIndex.find(name);
    return found != myAttributeIndex.end() ? found->second : nullptr;
}

void DtObjectClassFedNode::removeAttributes()
{
    for (DtAttributeFedNode*& attribute : myAttributes)
    {
        delete attribute;
        attribute = nullptr;
    }
    myAttributeIndex.clear();
}
