#include "omtReader/omtTree.h"

void DtOMTTree::setReferences(const std::vector<DtOMTTreeReference>& references)
{
    myIdentification.references = references;
}

void DtOMTTree::addReference(const DtString& type, const DtString& identification)
{
    myIdentification.references.push_back({type, identification});
}

void DtOMTTree::addPOC(const DtString& type, const DtString& firstName, const DtString& lastName,
                       const DtString& organization, const DtString& telephone, const DtString& email,
                       const DtString& other)
{
    myIdentification.pointsOfContact.push_back({type, firstName, lastName, organization, telephone, email, other});
}

void DtOMTTree::addNoteNode(DtNoteNode* node)
{
    if (node == nullptr)
        return;
    myNoteNumbers.add(node, myNotes.nodes().size());
    myNotes.add(node);
}

DtTimeRepNode* DtOMTTree::getTimeRepNode()
{
    if (myTimeRep == nullptr)
        myTimeRep = std::make_unique<DtTimeRepNode>();
    return myTimeRep.get();
}

DtObjectClassFedNode* DtOMTTree::getObjectClassNode(const DtString& name) const
{
    if (name.isEmpty())
        return myObjectClassRoot;
    return myObjectClassRoot != nullptr ? myObjectClassRoot->findChildObject(name)
                                        : myObjectClasses.findByFullName(name);
}

DtInteractionClassFedNode* DtOMTTree::getInteractionClassNode(const DtString& name) const
{
    if (name.isEmpty())
        return myInteractionClassRoot;
    return myInteractionClassRoot != nullptr ? myInteractionClassRoot->findChildInteraction(name)
                                             : myInteractionClasses.findByFullName(name);
}
