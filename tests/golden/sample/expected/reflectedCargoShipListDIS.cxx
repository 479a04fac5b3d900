// Generated from case; the next generation writes it anew.
 
#include "reflectedCargoShipListDIS.h"
 
#include "netCargoShipPdu.h"
 
DtReflectedCargoShipList::DtReflectedCargoShipList(DtExerciseConn* exerciseConn)
    : DtDisReflectedList(exerciseConn, DtNetCargoShipPdu::theKind)
{
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
 
std::unique_ptr<DtDisReflectedObject> DtReflectedCargoShipList::makeObject(
    DtExerciseObjectId id, const std::string& name) const
{
    return std::unique_ptr<DtDisReflectedObject>(new DtReflectedCargoShip(id, name));
}

