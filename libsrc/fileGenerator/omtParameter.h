#ifndef FILE_GENERATOR_OMT_PARAMETER_H
#define FILE_GENERATOR_OMT_PARAMETER_H

#include "fileGenerator/omtMember.h"

// One parameter of a chosen interaction class.
class DtOmtParameter : public DtOmtMember
{
public:
    virtual void setEncoding(const DtString& encoding) { myEncoding = encoding; }
    virtual DtString encoding() const { return myEncoding; }
    virtual void setOwningInteraction(const DtString& fullName) { myOwner = DtSharedText::recent(fullName); }
    virtual DtString owningInteraction() const { return myOwner; }
    // Path of a text file whose text takes the place of the generated one; empty when there is none.
    virtual void setCustomGenerationRef(const DtString& fileName) { myCustomGenerationRef = fileName; }
    virtual DtString customGenerationRef() const { return myCustomGenerationRef; }
    // True when nothing is generated for it; false at first.
    virtual void setNoGen(bool noGen) { myNoGen = noGen; }
    virtual bool noGen() const { return myNoGen; }
};

#endif
