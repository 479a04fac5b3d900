#ifndef FILE_GENERATOR_OMT_MEMBER_H
#define FILE_GENERATOR_OMT_MEMBER_H

#include "fileGenerator/omtNode.h"

// The base of the attributes and parameters of a selection, which tells whether and how code is generated for one.
//
// The set of a class is ordered by the name alone. Two members with one name and different owners are not equal, but
// neither stands before the other, so a set keeps the one that came first. The accessors are those of the derived
// records, which name the owner each in its own way, in between.
class DtOmtMember : public DtOmtNode
{
public:
    bool operator==(const DtOmtMember& other) const
    {
        return myOwner.get() == other.myOwner.get() && myName.get() == other.myName.get();
    }
    bool operator<(const DtOmtMember& other) const { return myName.get() < other.myName.get(); }

protected:
    DtSharedText myEncoding;
    DtSharedText myOwner; // full name of the class that the member belongs to
    DtSharedText myCustomGenerationRef;
    bool myNoGen = false;
};

#endif
