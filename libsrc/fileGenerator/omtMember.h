#ifndef FILE_GENERATOR_OMT_MEMBER_H
#define FILE_GENERATOR_OMT_MEMBER_H

#include "fileGenerator/omtNode.h"

// What attributes and parameters of a selection have in common: whether and how code is generated for one.
//
// The set of a class is ordered by the name alone. Two members with one name and different owners are not equal, but
// neither stands before the other, so a set keeps the one that came first.
class DtOmtMember : public DtOmtNode
{
public:
    virtual void setEncoding(const DtString& encoding);
    virtual DtString encoding() const;
    // Full name of the class that the member belongs to.
    virtual void setOwner(const DtString& fullName);
    virtual DtString owner() const;
    // Path of a text file whose text takes the place of the generated one; empty when there is none.
    virtual void setCustomGenerationRef(const DtString& fileName);
    virtual DtString customGenerationRef() const;
    // True when nothing is generated for it; false at first.
    virtual void setNoGen(bool noGen);
    virtual bool noGen() const;

    bool operator==(const DtOmtMember& other) const { return myOwner == other.myOwner && myName == other.myName; }
    bool operator<(const DtOmtMember& other) const { return myName < other.myName; }

private:
    DtString myEncoding;
    DtString myOwner;
    DtString myCustomGenerationRef;
    bool myNoGen = false;
};

#endif
