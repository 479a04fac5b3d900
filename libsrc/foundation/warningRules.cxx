#include "foundation/warningRules.h"

const std::vector<const DtWarningRule*>& DtRules::all()
{
    static const std::vector<const DtWarningRule*> theRules = {
        &additionalRoot,    &carriageReturns,     &charactersLeftOut, &commandFileTooDeep, &duplicateEnumerator,
        &enumeratorValue,   &fileEndsEarly,       &incompleteCommand, &leftOutEnumeration, &missingName,
        &missingRoot,       &missingSetting,      &nameClash,         &noEncoding,         &noIdentifier,
        &openArraysCoded,   &outputNotWritten,    &outsideOutput,     &ownSuperclass,      &parentNotSelected,
        &recursiveDatatype, &renamedEnumerator,   &settingNotStored,  &streamNotWritten,   &templateBlock,
        &templateTooDeep,   &tooManySuperclasses, &toolkitName,       &toolkitTypeDiffers, &undeterminedType,
        &unfitDiscriminant, &unfitEnumerator,     &unknownByteOrder,  &unknownCardinality, &unreadableCommandFile,
        &unreadableModel,   &wrongCommandLine,    &wrongRoot,
    };
    return theRules;
}
