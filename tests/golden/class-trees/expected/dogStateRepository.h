#ifndef DT_DLL_CASE_DtDogStateRepository_H
#define DT_DLL_CASE_DtDogStateRepository_H
 
// Generated from case; the next generation writes it anew.
 
#include "animalStateRepository.h"
#include <qx/opaqueValue.h>
#include <qx/valueTypes.h>
 
#include "DataTypes/caseEnums.h"
#include "dllExport.h"
 
#include <vector>
 
// The attribute values of one Animal.Dog: its own here, those of its superclasses in the bases.
class DT_DLL_CASE DtDogStateRepository
    : public DtAnimalStateRepository
{
public:
    // Every value starts as zero, false or empty.
    DtDogStateRepository();

    typedef bool ValueOfBarks;
    void setBarks(const ValueOfBarks& value);
    const ValueOfBarks& barks() const;

    typedef DtFloat64 ValueOfWeight__Kg;
    void setWeight__Kg(const ValueOfWeight__Kg& value);
    const ValueOfWeight__Kg& weight__Kg() const;

private:
    // The values stand in a structure of their own, where no accessor can share their names.
    struct OwnValues
    {
        ValueOfBarks myBarks;
        ValueOfWeight__Kg myWeight__Kg;
    };
 
    OwnValues Own;
};

#endif
