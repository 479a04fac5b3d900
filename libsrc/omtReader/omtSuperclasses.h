#ifndef OMT_READER_OMT_SUPERCLASSES_H
#define OMT_READER_OMT_SUPERCLASSES_H

#include "foundation/warningRules.h"

#include <unordered_map>
#include <vector>

// The superclasses that the classes of a flat list name, with an end to how deep they go: whatever walks through the
// hierarchies may take a step of the program's stack for each level.
//
// All classes are added before the first is asked for. Owns no class.
//
// The depth of a class is worked out once. A walk goes up to a class whose depth is known or to one without a
// superclass, and then back down, where each class is one deeper than the one above it. Classes can name each other in
// a ring. So the walk marks each class it passes as out of reach: it ends where it meets its own mark, and the mark
// stays for all classes of the ring and below it.
template <typename Class>
class DtOmtSuperclasses
{
public:
    enum
    {
        theLargestDepth = 256 // as deep as elements of the XML formats can be
    };

    // kind: what the warning calls a class.
    DtOmtSuperclasses(const char* kind, DtSubject::Kind subjectKind) : myKind(kind), mySubjectKind(subjectKind) {}

    // Null for a class without a superclass.
    void add(Class* node, Class* superclass) { myLinks[node].superclass = superclass; }

    // The superclass that was added; null, with a warning, for a class with too many classes above it. Then it counts
    // as one without a superclass for those below it.
    Class* superclassOf(Class* node)
    {
        settle(node);
        return myLinks[node].superclass;
    }

private:
    enum
    {
        NotSettled = 0,
        OutOfReach = -1 // in a ring or below one
    };

    struct Link
    {
        Class* superclass = nullptr;
        int depth = NotSettled; // 1 for a class without a superclass
    };

    void settle(Class* node)
    {
        std::vector<Class*> path; // up to a class that is settled or has no superclass
        int depth = 0;
        for (; node != nullptr; node = myLinks[node].superclass)
        {
            depth = myLinks[node].depth;
            if (depth != NotSettled)
                break;
            myLinks[node].depth = OutOfReach; // stays when the path comes back to the class
            path.push_back(node);
        }
        if (depth == OutOfReach)
            return;
        for (auto each = path.rbegin(); each != path.rend(); ++each)
            depth = settleBelow(**each, depth);
    }

    int settleBelow(Class& node, int depth)
    {
        Link& link = myLinks[&node];
        if (depth == theLargestDepth)
        {
            DtTellWarning(DtRules::tooManySuperclasses, {mySubjectKind, node.getName(), {}},
                          DtString("Warning: ") + myKind + " " + node.getName() + " has more than " +
                              DtString(depth - 1) + " superclasses and is put under the root\n");
            link.superclass = nullptr;
            depth = 0;
        }
        return link.depth = depth + 1;
    }

    const char* myKind;
    DtSubject::Kind mySubjectKind;
    std::unordered_map<const Class*, Link> myLinks;
};

#endif
