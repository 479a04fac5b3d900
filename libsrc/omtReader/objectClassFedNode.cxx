#include "omtReader/objectClassFedNode.h"

#include <algorithm>

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
    const auto found = std::find_if(myAttributes.rbegin(), myAttributes.rend(),
                                    [name](const DtAttributeFedNode* attribute)
                                    { return attribute != nullptr && attribute->getName() == name; });
    return found != myAttributes.rend() ? *found : nullptr;
}

void DtObjectClassFedNode::removeAttributes()
{
    for (DtAttributeFedNode*& attribute : myAttributes)
    {
        delete attribute;
        attribute = nullptr;
    }
}
