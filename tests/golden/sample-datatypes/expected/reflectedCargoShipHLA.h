#ifndef DT_DLL_CASE_DtReflectedCargoShip_H
#define DT_DLL_CASE_DtReflectedCargoShip_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/hlaReflectedObject.h>
 
#include "cargoShipStateRepository.h"
#include "dllExport.h"
 
#include <string>
 
class DtReflectedCargoShip;
typedef void (*DtCargoShipCallbackFunction)(DtReflectedCargoShip* object, void* user);
 
// A CargoShip that someone else publishes. DtReflectedCargoShipList makes it and keeps it up to date.
class DT_DLL_CASE DtReflectedCargoShip : public DtHlaReflectedObject
{
public:
    DtReflectedCargoShip(DtExerciseObjectId id, const std::string& name);
 
    // The object's state, under a long and a short name.
    DtCargoShipStateRepository* cargoShipStateRep() const;
    DtCargoShipStateRepository* csr() const;
};

#endif
