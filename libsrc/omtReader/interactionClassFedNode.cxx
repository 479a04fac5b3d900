#include "omtReader/interactionClassFedNode.h"

DtInteractionClassFedNode::DtInteractionClassFedNode(const DtInteractionClassFedNode& other)
    : DtFedNode(other),
      myDescriptor(other.myDescriptor),
      mySharing(other.mySharing),
      myTransportation(other.myTransportation),
      myOrder(other.myOrder),
      myDimensions(other.myDimensions),
      myIdentifier(other.myIdentifier),
      myParentIdentifier(other.myParentIdentifier)
{
    for (const DtParameterFedNode* parameter : other.myParameters)
        if (parameter != nullptr)
            DtInteractionClassFedNode::addParameter(new DtParameterFedNode(*parameter));
}

DtInteractionClassFedNode::~DtInteractionClassFedNode()
{
    for (DtParameterFedNode* parameter : myParameters)
        delete parameter;
}

void DtInteractionClassFedNode::addParameter(DtParameterFedNode* parameter)
{
    if (parameter == nullptr)
        return;
    parameter->setParentObject(this);
    myParameters.push_back(parameter);
}

void DtInteractionClassFedNode::addChildInteraction(DtInteractionClassFedNode* child)
{
    if (child == nullptr)
        return;
    child->setParentObject(this);
    myChildren.add(child);
}

DtInteractionClassFedNode* DtInteractionClassFedNode::findChildInteraction(const char* path)
{
    return myChildren.find(
        this, DtString(path).stdString(),
        [](const DtInteractionClassFedNode& node) -> auto& { return node.myChildren; });
}

DtParameterFedNode* DtInteractionClassFedNode::findParameter(const char* name) const
{
    for (DtParameterFedNode* parameter : myParameters)
        if (parameter != nullptr && parameter->getName() == name)
            return parameter;
    return nullptr;
}

void DtInteractionClassFedNode::removeParameters()
{
    for (DtParameterFedNode*& parameter : myParameters)
    {
        delete parameter;
        parameter = nullptr;
    }
}
