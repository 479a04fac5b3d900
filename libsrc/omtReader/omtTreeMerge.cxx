// The merge of DtOMTTree.

#include "omtReader/omtTree.h"

namespace
{
// What the merge of object classes and that of interaction classes do not have in common, for DtClassMerger.
struct DtObjectKind
{
    using Class = DtObjectClassFedNode;
    using Member = DtAttributeFedNode;

    static const std::list<Class*>& children(const Class& node) { return node.getChildObjects(); }
    static const std::list<Member*>& members(const Class& node) { return node.getAttributes(); }
    static void addChild(Class& node, Class* child) { node.addChildObject(child); }
    static void addMember(Class& node, Member* member) { node.addAttribute(member); }
    static Class* find(const DtOMTTree& tree, const DtString& name) { return tree.getObjectClassNode(name); }
    static void add(DtOMTTree& tree, Class* node) { tree.addObjectClassNode(node); }
};

struct DtInteractionKind
{
    using Class = DtInteractionClassFedNode;
    using Member = DtParameterFedNode;

    static const std::list<Class*>& children(const Class& node) { return node.getChildInteractions(); }
    static const std::list<Member*>& members(const Class& node) { return node.getParameters(); }
    static void addChild(Class& node, Class* child) { node.addChildInteraction(child); }
    static void addMember(Class& node, Member* member) { node.addParameter(member); }
    static Class* find(const DtOMTTree& tree, const DtString& name) { return tree.getInteractionClassNode(name); }
    static void add(DtOMTTree& tree, Class* node) { tree.addInteractionClassNode(node); }
};

// Merges one class with all below it, depth first. The classes on the way down stand in a list of steps and not on the
// program's stack, so that no depth exhausts it.
//
// Each step pairs a class of the other tree with its counterpart in this one, found or new. A new class hangs under its
// parent only when all below it are merged: until then its full name is that of its source, whose parent it still has.
template <typename Kind>
class DtClassMerger
{
public:
    using Class = typename Kind::Class;

    explicit DtClassMerger(DtOMTTree& tree) : myTree(tree) {}

    // The copy of the class when it is new in the tree, null otherwise.
    Class* merge(const Class& top)
    {
        enter(top);
        while (true)
        {
            Step& step = mySteps.back();
            if (step.nextChild != Kind::children(*step.source).end())
            {
                enter(**step.nextChild++);
                continue;
            }
            Class* added = leave();
            if (mySteps.empty())
                return added;
            Kind::addChild(*mySteps.back().target, added); // null is ignored
        }
    }

private:
    struct Step
    {
        const Class* source;
        Class* target;
        bool isNew;
        typename std::list<Class*>::const_iterator nextChild;
    };

    void enter(const Class& source)
    {
        Class* target = Kind::find(myTree, source.getFullName());
        const bool isNew = target == nullptr;
        if (isNew)
            target = new Class(source);
        else if (Kind::members(*target).empty())
            copyMembers(source, *target);
        mySteps.push_back({&source, target, isNew, Kind::children(source).begin()});
    }

    // A class enters the flat list behind its subclasses.
    Class* leave()
    {
        const Step step = mySteps.back();
        mySteps.pop_back();
        if (!step.isNew)
            return nullptr;
        Kind::add(myTree, step.target);
        return step.target;
    }

    static void copyMembers(const Class& source, Class& target)
    {
        for (const auto* member : Kind::members(source))
            if (member != nullptr)
                Kind::addMember(target, new typename Kind::Member(*member));
    }

    DtOMTTree& myTree;
    std::vector<Step> mySteps;
};
} // namespace

void DtOMTTree::merge(const DtOMTTree* other)
{
    mergeModelIdentification(other);
    mergeObjects(other);
    mergeInteractions(other);
    mergeDatatypes(other);
    mergeNotes(other);
    mergeSyncPoints(other);
    mergeTransportations(other);
    mergeDimensions(other);
    mergeUpdateRates(other);
    mergeTags(other);
    mergeSwitches(other);
    if (myTimeRep == nullptr && other->myTimeRep != nullptr)
        myTimeRep = std::make_unique<DtTimeRepNode>(*other->myTimeRep);
}

void DtOMTTree::mergeModelIdentification(const DtOMTTree* other)
{
    if (hlaVersion() == DtHla1516e || hlaVersion() == DtHla4)
        addReference("Composed_From", other->getName());
}

void DtOMTTree::mergeObjects(const DtOMTTree* other)
{
    if (other->objectClassRoot() == nullptr)
        return;
    if (DtObjectClassFedNode* root = mergeObjectNode(other->objectClassRoot()))
        setObjectClassRoot(root);
}

DtObjectClassFedNode* DtOMTTree::mergeObjectNode(const DtObjectClassFedNode* node)
{
    return DtClassMerger<DtObjectKind>(*this).merge(*node);
}

void DtOMTTree::mergeInteractions(const DtOMTTree* other)
{
    if (other->interactionClassRoot() == nullptr)
        return;
    if (DtInteractionClassFedNode* root = mergeInteractionNode(other->interactionClassRoot()))
        setInteractionClassRoot(root);
}

DtInteractionClassFedNode* DtOMTTree::mergeInteractionNode(const DtInteractionClassFedNode* node)
{
    return DtClassMerger<DtInteractionKind>(*this).merge(*node);
}

// Calls combine(list, list of other) for each kind of datatypes.
template <typename Other, typename Combine>
void DtOMTTree::combineDatatypes(Other& other, Combine combine)
{
    combine(myBasicDataRepresentations, other.myBasicDataRepresentations);
    combine(myVariantDatatypes, other.myVariantDatatypes);
    combine(myFixedDatatypes, other.myFixedDatatypes);
    combine(mySimpleDatatypes, other.mySimpleDatatypes);
    combine(myReferenceDatatypes, other.myReferenceDatatypes);
    combine(myComplexDatatypes, other.myComplexDatatypes);
    combine(myArrayDatatypes, other.myArrayDatatypes);
    combine(myEnumeratedDatatypes, other.myEnumeratedDatatypes);
}

void DtOMTTree::mergeDatatypes(const DtOMTTree* other)
{
    combineDatatypes(*other, [](auto& own, const auto& others) { own.merge(others); });
}

void DtOMTTree::takeDatatypes(DtOMTTree& other)
{
    combineDatatypes(other, [](auto& own, auto& others) { own.takeNew(others); });
}

void DtOMTTree::mergeNotes(const DtOMTTree* other)
{
    for (const DtNoteNode* note : other->myNotes)
        if (getNoteNode(note->getLabel()) == nullptr)
            addNoteNode(new DtNoteNode(*note));
}

void DtOMTTree::mergeSyncPoints(const DtOMTTree* other)
{
    mySynchros.merge(other->mySynchros);
}

void DtOMTTree::mergeTransportations(const DtOMTTree* other)
{
    myTransportations.merge(other->myTransportations);
}

void DtOMTTree::mergeDimensions(const DtOMTTree* other)
{
    myDimensions.merge(other->myDimensions);
}

void DtOMTTree::mergeUpdateRates(const DtOMTTree* other)
{
    myUpdateRates.merge(other->myUpdateRates);
}

void DtOMTTree::mergeTags(const DtOMTTree* other)
{
    myTags.merge(other->myTags);
}

void DtOMTTree::mergeSwitches(const DtOMTTree* other)
{
    mySwitches.merge(other->mySwitches);
}
