// Generated from case; the next generation writes it anew.
 
#include "reflectedCargoShipListHLA.h"
 
DtReflectedCargoShipList::DtReflectedCargoShipList(DtExerciseConn* exerciseConn)
    : DtHlaReflectedList(exerciseConn, fullClassName())
{
}
 
const char* DtReflectedCargoShipList::fullClassName()
{
    return "PortEntity.Vessel.CargoShip";
}
 
DtReflectedCargoShip* DtReflectedCargoShipList::first() const
{
    return static_cast<DtReflectedCargoShip*>(findAfter(0));
}
 
DtReflectedCargoShip* DtReflectedCargoShipList::next(const DtReflectedCargoShip* object) const
{
    return static_cast<DtReflectedCargoShip*>(findAfter(object->objectId()));
}
 
DtReflectedCargoShip* DtReflectedCargoShipList::lookup(DtExerciseObjectId id) const
{
    return static_cast<DtReflectedCargoShip*>(find(id));
}
 
void DtReflectedCargoShipList::addAdditionCallback(DtCargoShipCallbackFunction callback, void* user)
{
    addCallback(Addition, callback, user);
}
 
void DtReflectedCargoShipList::removeAdditionCallback(DtCargoShipCallbackFunction callback, void* user)
{
    removeCallback(Addition, callback, user);
}
 
void DtReflectedCargoShipList::addUpdateCallback(DtCargoShipCallbackFunction callback, void* user)
{
    addCallback(Update, callback, user);
}
 
void DtReflectedCargoShipList::removeUpdateCallback(DtCargoShipCallbackFunction callback, void* user)
{
    removeCallback(Update, callback, user);
}
 
void DtReflectedCargoShipList::addRemovalCallback(DtCargoShipCallbackFunction callback, void* user)
{
    addCallback(Removal, callback, user);
}
 
void DtReflectedCargoShipList::removeRemovalCallback(DtCargoShipCallbackFunction callback, void* user)
{
    removeCallback(Removal, callback, user);
}
 
std::unique_ptr<DtHlaReflectedObject> DtReflectedCargoShipList::makeObject(
    DtExerciseObjectId id, const std::string& name) const
{
    return std::unique_ptr<DtHlaReflectedObject>(new DtReflectedCargoShip(id, name));
}

