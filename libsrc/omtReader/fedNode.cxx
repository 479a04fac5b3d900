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

// True when the way up from here goes round in a ring: classes of the OMT text format can name each other as
// superclass. Two nodes walk up, one of them twice as fast. In a ring the fast one meets the slow one; elsewhere it
// reaches a top class or a class whose full name is known, which is below no ring.
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
