// Generated from case; the next generation writes it anew.
 
#include "reflectedBeaconListHLA.h"
 
DtReflectedBeaconList::DtReflectedBeaconList(DtExerciseConn* exerciseConn)
    : DtHlaReflectedList(exerciseConn, fullClassName())
{
}
 
const char* DtReflectedBeaconList::fullClassName()
{
    return "PortEntity.Beacon";
}
 
DtReflectedBeacon* DtReflectedBeaconList::first() const
{
    return static_cast<DtReflectedBeacon*>(findAfter(0));
}
 
DtReflectedBeacon* DtReflectedBeaconList::next(const DtReflectedBeacon* object) const
{
    return static_cast<DtReflectedBeacon*>(findAfter(object->objectId()));
}
 
DtReflectedBeacon* DtReflectedBeaconList::lookup(DtExerciseObjectId id) const
{
    return static_cast<DtReflectedBeacon*>(find(id));
}
 
void DtReflectedBeaconList::addAdditionCallback(DtBeaconCallbackFunction callback, void* user)
{
    addCallback(Addition, callback, user);
}
 
void DtReflectedBeaconList::removeAdditionCallback(DtBeaconCallbackFunction callback, void* user)
{
    removeCallback(Addition, callback, user);
}
 
void DtReflectedBeaconList::addUpdateCallback(DtBeaconCallbackFunction callback, void* user)
{
    addCallback(Update, callback, user);
}
 
void DtReflectedBeaconList::removeUpdateCallback(DtBeaconCallbackFunction callback, void* user)
{
    removeCallback(Update, callback, user);
}
 
void DtReflectedBeaconList::addRemovalCallback(DtBeaconCallbackFunction callback, void* user)
{
    addCallback(Removal, callback, user);
}
 
void DtReflectedBeaconList::removeRemovalCallback(DtBeaconCallbackFunction callback, void* user)
{
    removeCallback(Removal, callback, user);
}
 
std::unique_ptr<DtHlaReflectedObject> DtReflectedBeaconList::makeObject(
    DtExerciseObjectId id, const std::string& name) const
{
    return std::unique_ptr<DtHlaReflectedObject>(new DtReflectedBeacon(id, name));
}

