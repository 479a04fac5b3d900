#include "codeGenApp/classSelection.h"

#include "fileGenerator/omtProject.h"
#include "omtReader/interactionClassFedNode.h"
#include "omtReader/objectClassFedNode.h"
#include "omtReader/omtTree.h"

#include <vector>

namespace
{
const auto& childrenOf(const DtObjectClassFedNode& node)
{
    return node.getChildObjects();
}

const auto& childrenOf(const DtInteractionClassFedNode& node)
{
    return node.getChildInteractions();
}

bool isRecorded(const DtOmtProject& project, const DtObjectClassFedNode& node)
{
    return project.isObjectInProj(node.getFullName());
}

bool isRecorded(const DtOmtProject& project, const DtInteractionClassFedNode& node)
{
    return project.isInteractionInProj(node.getFullName());
}

void record(DtOmtProject& project, const DtObjectClassFedNode* node)
{
    if (!isRecorded(project, *node))
        project.addObject(node);
}

void record(DtOmtProject& project, const DtInteractionClassFedNode* node)
{
    if (!isRecorded(project, *node))
        project.addInteraction(node);
}

// The texts under which the lists of the window show the two roots.
const char theObjects[] = "Objects";
const char theInteractions[] = "Interactions";

// Walks the classes below a root. Of several siblings of one name the first one counts.
//
// The lists take every item of a root's text for a root. So a class that is called like one is not recorded, nor are
// its superclasses on account of its subclasses, and those are recorded only when they are of the kind that it names.
template <typename Node>
class DtSelectionWalk
{
public:
    DtSelectionWalk(const char* label, DtOmtProject& project, const DtIsClassWanted& isWanted)
        : myLabel(label), myProject(project), myIsWanted(isWanted)
    {
    }

    void visitBelow(const Node& parent)
    {
        for (const Node* child : childrenOf(parent))
            visit(*child);
    }

private:
    void visit(const Node& node)
    {
        const DtString& name = node.getName();
        const bool isLikeRoot = name == theObjects || name == theInteractions;
        std::vector<const Node*> outerPath;
        const bool wasOther = myIsOther;
        if (isLikeRoot)
        {
            outerPath.swap(myPath);
            myIsOther = name != myLabel;
        }
        else
            myPath.push_back(&node);
        if (!isLikeRoot && !myIsOther && myIsWanted(node.getFullName()))
            recordPath();
        visitBelow(node);
        if (isLikeRoot)
            myPath.swap(outerPath);
        else
            myPath.pop_back();
        myIsOther = wasOther;
    }

    // From the root down. Superclasses that are in the project are so with theirs.
    void recordPath()
    {
        std::size_t first = myPath.size() - 1;
        while (first > 0 && !isRecorded(myProject, *myPath[first - 1]))
            --first;
        for (std::size_t index = first; index < myPath.size(); ++index)
            record(myProject, myPath[index]);
    }

    const char* myLabel;
    DtOmtProject& myProject;
    const DtIsClassWanted& myIsWanted;
    std::vector<const Node*> myPath; // from below the root to the class at hand
    bool myIsOther = false;          // below a class that is called like the root of the other kind
};

template <typename Node>
void selectBelow(const Node* root, const char* label, DtOmtProject& project, const DtIsClassWanted& isWanted)
{
    if (root != nullptr)
        DtSelectionWalk<Node>(label, project, isWanted).visitBelow(*root);
}
} // namespace

void DtSelectClasses(const DtOMTTree& tree, DtOmtProject& project, const DtIsClassWanted& isWanted)
{
    selectBelow<DtObjectClassFedNode>(tree.objectClassRoot(), theObjects, project, isWanted);
    selectBelow<DtInteractionClassFedNode>(tree.interactionClassRoot(), theInteractions, project, isWanted);
}

void DtSelectAllClasses(const DtOMTTree& tree, DtOmtProject& project)
{
    DtSelectClasses(tree, project, [](const DtString& /*fullName*/) { return true; });
}
