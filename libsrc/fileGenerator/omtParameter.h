#ifndef FILE_GENERATOR_OMT_PARAMETER_H
#define FILE_GENERATOR_OMT_PARAMETER_H

#include "fileGenerator/omtMember.h"

// One parameter of a chosen interaction class.
class DtOmtParameter : public DtOmtMember
{
public:
    virtual void setOwningInteraction(const DtString& fullName) { setOwner(fullName); }
    virtual DtString owningInteraction() const { return owner(); }
};

#endif
