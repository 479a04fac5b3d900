#ifndef FILE_GENERATOR_OMT_CLASS_H
#define FILE_GENERATOR_OMT_CLASS_H

#include "fileGenerator/omtNode.h"
#include "foundation/sharedValue.h"

#include <set>

// The base of chosen object and interaction classes, which holds the set of their members.
template <typename Member>
class DtOmtClass : public DtOmtNode
{
protected:
    // A copy of the member of that name; the key of the search itself when there is none, with name, full name and
    // owner set and all else as in a new record.
    Member memberFromName(const DtString& name, void (Member::*setOwner)(const DtString&)) const
    {
        Member key;
        (key.*setOwner)(myFullName);
        key.setName(name);
        key.setFullName(name);
        const auto found = myMembers->find(key);
        return found != myMembers->end() ? *found : key;
    }

    DtSharedValue<std::set<Member>> myMembers;
};

#endif
