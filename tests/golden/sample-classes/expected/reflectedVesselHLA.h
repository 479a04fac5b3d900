#ifndef DT_DLL_CASE_DtReflectedVessel_H
#define DT_DLL_CASE_DtReflectedVessel_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/hlaReflectedObject.h>
 
#include "vesselStateRepository.h"
#include "dllExport.h"
 
#include <string>
 
class DtReflectedVessel;
typedef void (*DtVesselCallbackFunction)(DtReflectedVessel* object, void* user);
 
// A Vessel that someone else publishes. DtReflectedVesselList makes it and keeps it up to date.
class DT_DLL_CASE DtReflectedVessel : public DtHlaReflectedObject
{
public:
    DtReflectedVessel(DtExerciseObjectId id, const std::string& name);
 
    // The object's state, under a long and a short name.
    DtVesselStateRepository* vesselStateRep() const;
    DtVesselStateRepository* vsr() const;
};

#endif
