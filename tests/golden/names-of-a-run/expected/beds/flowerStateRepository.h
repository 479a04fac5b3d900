#ifndef DT_DLL_CASE_DtQxFlowerStateRepository_H
#define DT_DLL_CASE_DtQxFlowerStateRepository_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/stateRepository.h>
#include <qx/opaqueValue.h>
#include <qx/valueTypes.h>
 
#include "DataTypes/caseEnums.h"
#ifndef __has_include
#include "DataTypes/qxPacket.h"
#elif __has_include("DataTypes/qxPacket.h")
#include "DataTypes/qxPacket.h"
#endif
#include "dllExport.h"
 
#include <vector>
 
namespace garden
{
 
// The attribute values of one Flower: its own here, those of its superclasses in the bases.
class DT_DLL_CASE DtQxFlowerStateRepository
    : public DtStateRepository
{
public:
    // Every value starts as zero, false or empty.
    DtQxFlowerStateRepository();

    typedef DtColour8 ValueOfColour;
    void setColour(const ValueOfColour& value);
    const ValueOfColour& colour() const;

    typedef DtQxPacket ValueOfSeed;
    void setSeed(const ValueOfSeed& value);
    const ValueOfSeed& seed() const;

private:
    // The values stand in a structure of their own, where no accessor can share their names.
    struct OwnValues
    {
        ValueOfColour myColour;
        ValueOfSeed mySeed;
    };
 
    OwnValues Own;
};

} // namespace garden

#endif
