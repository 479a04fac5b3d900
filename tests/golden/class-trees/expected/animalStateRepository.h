#ifndef DT_DLL_CASE_DtAnimalStateRepository_H
#define DT_DLL_CASE_DtAnimalStateRepository_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/stateRepository.h>
#include <qx/opaqueValue.h>
#include <qx/valueTypes.h>
 
#include "DataTypes/caseEnums.h"
#include "dllExport.h"
 
#include <vector>
 
// The attribute values of one Animal: its own here, those of its superclasses in the bases.
class DT_DLL_CASE DtAnimalStateRepository
    : public DtStateRepository
{
public:
    // Every value starts as zero, false or empty.
    DtAnimalStateRepository();

    typedef DtString ValueOfName;
    void setName(const ValueOfName& value);
    const ValueOfName& name() const;

    typedef DtInt32 ValueOfLegs;
    void setLegs(const ValueOfLegs& value);
    const ValueOfLegs& legs() const;

private:
    // The values stand in a structure of their own, where no accessor can share their names.
    struct OwnValues
    {
        ValueOfName myName;
        ValueOfLegs myLegs;
    };
 
    OwnValues Own;
};

#endif
