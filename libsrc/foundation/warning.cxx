#include "foundation/warning.h"

#include "foundation/outputStream.h"

namespace
{
DtWarningTaker* theTaker = nullptr;
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
