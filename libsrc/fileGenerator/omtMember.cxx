#include "fileGenerator/omtMember.h"

void DtOmtMember::setEncoding(const DtString& encoding)
{
    myEncoding = encoding;
}

DtString DtOmtMember::encoding() const
{
    return myEncoding;
}

void DtOmtMember::setOwner(const DtString& fullName)
{
    myOwner = fullName;
}

DtString DtOmtMember::owner() const
{
    return myOwner;
}

void DtOmtMember::setCustomGenerationRef(const DtString& fileName)
{
    myCustomGenerationRef = fileName;
}

DtString DtOmtMember::customGenerationRef() const
{
    return myCustomGenerationRef;
}

void DtOmtMember::setNoGen(bool noGen)
{
    myNoGen = noGen;
}

bool DtOmtMember::noGen() const
{
    return myNoGen;
}
