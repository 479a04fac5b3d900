#include "foundation/warning.h"

#include "foundation/outputStream.h"

namespace
{
DtWarningTaker* theTaker = nullptr;
}

DtSubject DtSubject::member(const DtString& memberName) const
{
    switch (kind)
    {
    case ObjectClass:
        return {Attribute, memberName, name};
    case InteractionClass:
        return {Parameter, memberName, name};
    case Datatype:
        return {Field, memberName, name};
    case None:
    case File:
    case Attribute:
    case Parameter:
    case Field:
    case Enumerator:
    case Setting:
        break;
    }
    return *this;
}

DtWarningTaker::DtWarningTaker() : myOuter(theTaker)
{
    theTaker = this;
}

DtWarningTaker::~DtWarningTaker()
{
    theTaker = myOuter;
}

void DtTellWarning(const DtWarningRule& rule, const DtSubject& subject, const DtString& text)
{
    if (theTaker != nullptr)
        theTaker->take({rule, subject, text});
    else
        DtWarn << text << std::flush;
}
