#ifndef FILE_GENERATOR_OMT_NODE_H
#define FILE_GENERATOR_OMT_NODE_H

#include "foundation/sharedText.h"
#include "foundation/string.h"

#include <memory>
#include <vector>

// Base of the records of a selection: the names of one chosen class, attribute or parameter and its identifiers.
//
// A plain value that holds names only, never a pointer into a parse tree. Records stand in sets, so what can be asked
// of them is const, the making of identifiers included.
class DtOmtNode
{
public:
    virtual ~DtOmtNode();

    // A class has the dotted path from the root, which orders the sets; an attribute or parameter has its plain name.
    virtual void setFullName(DtString fullName);
    virtual DtString fullName() const;
    // A class has a short name that no other class of the project has; an attribute or parameter has its plain name.
    virtual void setName(DtString name);
    virtual DtString name() const;
    virtual void setShouldRename(bool shouldRename); // false at first
    virtual bool shouldRename() const;
    // The user's replacement for the name; empty when there is none.
    virtual void setRename(DtString rename);
    virtual DtString rename() const;
    // A UUID as text, always the same for the same index of one record. Copies made later carry it along. It is random,
    // or follows from the full name where the settings say so.
    virtual DtString uuid(unsigned int index) const;

    bool operator<(const DtOmtNode& other) const { return myFullName.get() < other.myFullName.get(); }

protected:
    DtSharedText myFullName;
    DtSharedText myName;
    bool myShouldRename = false;
    DtSharedText myRename;
    mutable std::shared_ptr<const std::vector<DtString>> myUuids; // as many as were asked for; null for none

private:
    DtString newUuid(std::size_t index) const;
};

#endif
