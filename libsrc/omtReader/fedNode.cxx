#include "omtReader/fedNode.h"

#include "foundation/assertion.h"

#include <vector>

DtFedNode& DtFedNode::operator=(const DtFedNode& other)
{
    if (this == &other)
        return *this;
    DtOMTNode::operator=(other);
    myParent = other.myParent;
    myFullName.reset();
    return *this;
}

void DtFedNode::setParentObject(DtFedNode* parent)
{
    DT_ASSERT_AS(this != parent, "this != f", "libsrc/omtReader/fedNode", 64, __PRETTY_FUNCTION__);
    myParent = parent;
}

const DtFedNode* DtFedNode::namedParent() const
{
    return myParent != nullptr && myParent->getName().length() > 0 ? myParent : nullptr;
}

// A file of flat classes that name each other as superclass can close a ring.
bool DtFedNode::isBelowRing() const
{
    const DtFedNode* slow = this;
    const DtFedNode* fast = this;
    while (true)
    {
        for (int step = 0; step < 2; ++step)
        {
            if (fast->myFullName != nullptr || fast->namedParent() == nullptr)
                return false;
            fast = fast->namedParent();
        }
        slow = slow->namedParent();
        if (slow == fast)
            return true;
    }
}

const DtString& DtFedNode::getFullName() const
{
    if (myFullName != nullptr)
        return *myFullName;
    if (namedParent() == nullptr || isBelowRing())
        return getName();
    std::vector<const DtFedNode*> path; // from here up; a loop, since no depth of classes may exhaust the stack
    for (const DtFedNode* node = this; node->myFullName == nullptr && node->namedParent() != nullptr;
         node = node->namedParent())
        path.push_back(node);
    for (auto node = path.rbegin(); node != path.rend(); ++node)
        (*node)->myFullName = std::make_unique<DtString>((*node)->myParent->getFullName() + "." + (*node)->getName());
    return *myFullName;
}
