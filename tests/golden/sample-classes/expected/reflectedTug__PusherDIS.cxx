// Generated from case; the next generation writes it anew.
 
#include "reflectedTug__PusherDIS.h"
 
#include "tug__PusherDecoderDIS.h"
 
DtReflectedTug__Pusher::DtReflectedTug__Pusher(DtExerciseObjectId id, const std::string& name)
    : DtDisReflectedObject(id, name, std::unique_ptr<DtStateRepository>(new DtTug__PusherStateRepository),
                           std::unique_ptr<DtStateDecoder>(new DtTug__PusherDecoder))
{
}
 
DtTug__PusherStateRepository* DtReflectedTug__Pusher::tug__PusherStateRep() const
{
    return static_cast<DtTug__PusherStateRepository*>(stateRepository());
}
 
DtTug__PusherStateRepository* DtReflectedTug__Pusher::tsr() const
{
    return tug__PusherStateRep();
}

