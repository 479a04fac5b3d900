#ifndef DT_DLL_CASE_DtCargoShipStateRepository_H
#define DT_DLL_CASE_DtCargoShipStateRepository_H
 
// Generated from case; the next generation writes it anew.
 
#include "vesselStateRepository.h"
#include <qx/opaqueValue.h>
#include <qx/valueTypes.h>
 
#include "DataTypes/caseEnums.h"
#ifndef __has_include
#include "DataTypes/holdTable.h"
#elif __has_include("DataTypes/holdTable.h")
#include "DataTypes/holdTable.h"
#endif
#ifndef __has_include
#include "DataTypes/cargo_Item_List.h"
#elif __has_include("DataTypes/cargo_Item_List.h")
#include "DataTypes/cargo_Item_List.h"
#endif
#ifndef __has_include
#include "DataTypes/seal__Code.h"
#elif __has_include("DataTypes/seal__Code.h")
#include "DataTypes/seal__Code.h"
#endif
#include "dllExport.h"
 
#include <vector>
 
// The attribute values of one PortEntity.Vessel.CargoShip: its own here, those of its superclasses in the bases.
class DT_DLL_CASE DtCargoShipStateRepository
    : public DtVesselStateRepository
{
public:
    // Every value starts as zero, false or empty.
    DtCargoShipStateRepository();

    typedef DtHoldTable ValueOfHolds;
    void setHolds(const ValueOfHolds& value);
    const ValueOfHolds& holds() const;

    typedef DtCargo_Item_List ValueOfManifest;
    void setManifest(const ValueOfManifest& value);
    const ValueOfManifest& manifest() const;

    typedef DtFloat32 ValueOfDraught;
    void setDraught(const ValueOfDraught& value);
    const ValueOfDraught& draught() const;

    typedef bool ValueOfDangerous;
    void setDangerous(const ValueOfDangerous& value);
    const ValueOfDangerous& dangerous() const;

    typedef DtSeal__Code ValueOfSeal;
    void setSeal(const ValueOfSeal& value);
    const ValueOfSeal& seal() const;

private:
    // The values stand in a structure of their own, where no accessor can share their names.
    struct OwnValues
    {
        ValueOfHolds myHolds;
        ValueOfManifest myManifest;
        ValueOfDraught myDraught;
        ValueOfDangerous myDangerous;
        ValueOfSeal mySeal;
    };
 
    OwnValues Own;
};

#endif
