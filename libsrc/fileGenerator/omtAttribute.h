#ifndef FILE_GENERATOR_OMT_ATTRIBUTE_H
#define FILE_GENERATOR_OMT_ATTRIBUTE_H

#include "fileGenerator/omtMember.h"

// One attribute of a chosen object class.
class DtOmtAttribute : public DtOmtMember
{
public:
    virtual void setEncoding(const DtString& encoding) { myEncoding = encoding; }
    virtual DtString encoding() const { return myEncoding; }
    virtual void setOwningObject(const DtString& fullName) { myOwner = DtSharedText::recent(fullName); }
    virtual DtString owningObject() const { return myOwner; }
    // Path of a text file whose text takes the place of the generated one; empty when there is none.
    virtual void setCustomGenerationRef(const DtString& fileName) { myCustomGenerationRef = fileName; }
    virtual DtString customGenerationRef() const { return myCustomGenerationRef; }
    // True when nothing is generated for it; false at first.
    virtual void setNoGen(bool noGen) { myNoGen = noGen; }
    virtual bool noGen() const { return myNoGen; }
};

#endif
