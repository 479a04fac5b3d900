#ifndef DT_DLL_CASE_DtReflectedTug__Pusher_DIS_H
#define DT_DLL_CASE_DtReflectedTug__Pusher_DIS_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/disReflectedObject.h>
 
#include "tug__PusherStateRepository.h"
#include "dllExport.h"
 
#include <string>
 
class DtReflectedTug__Pusher;
typedef void (*DtTug__PusherCallbackFunction)(DtReflectedTug__Pusher* object, void* user);
 
// A HLAobjectRoot.PortEntity.Vessel.Tug/Pusher that someone else publishes. DtReflectedTug__PusherList makes it and keeps it up to date.
class DT_DLL_CASE DtReflectedTug__Pusher : public DtDisReflectedObject
{
public:
    DtReflectedTug__Pusher(DtExerciseObjectId id, const std::string& name);
 
    // The object's state, under a long and a short name.
    DtTug__PusherStateRepository* tug__PusherStateRep() const;
    DtTug__PusherStateRepository* tsr() const;
};

#endif
