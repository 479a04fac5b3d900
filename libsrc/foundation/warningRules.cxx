#include "foundation/warningRules.h"

const std::vector<const DtWarningRule*>& DtRules::all()
{
    static const std::vector<const DtWarningRule*> theRules = {
        &outputNotWritten,
    };
    return theRules;
}
