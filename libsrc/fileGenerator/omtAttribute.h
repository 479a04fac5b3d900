#ifndef FILE_GENERATOR_OMT_ATTRIBUTE_H
#define FILE_GENERATOR_OMT_ATTRIBUTE_H

#include "fileGenerator/omtMember.h"

// One attribute of a chosen object class.
class DtOmtAttribute : public DtOmtMember
{
public:
    virtual void setOwningObject(const DtString& fullName) { setOwner(fullName); }
    virtual DtString owningObject() const { return owner(); }
};

#endif
