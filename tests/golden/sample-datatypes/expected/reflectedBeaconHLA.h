#ifndef DT_DLL_CASE_DtReflectedBeacon_H
#define DT_DLL_CASE_DtReflectedBeacon_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/hlaReflectedObject.h>
 
#include "beaconStateRepository.h"
#include "dllExport.h"
 
#include <string>
 
class DtReflectedBeacon;
typedef void (*DtBeaconCallbackFunction)(DtReflectedBeacon* object, void* user);
 
// A Beacon that someone else publishes. DtReflectedBeaconList makes it and keeps it up to date.
class DT_DLL_CASE DtReflectedBeacon : public DtHlaReflectedObject
{
public:
    DtReflectedBeacon(DtExerciseObjectId id, const std::string& name);
 
    // The object's state, under a long and a short name.
    DtBeaconStateRepository* beaconStateRep() const;
    DtBeaconStateRepository* bsr() const;
};

#endif
