// Generated from case; the next generation writes it anew.
 
#include "reflectedTug__PusherListHLA.h"
 
DtReflectedTug__PusherList::DtReflectedTug__PusherList(DtExerciseConn* exerciseConn)
    : DtHlaReflectedList(exerciseConn, fullClassName())
{
}
 
const char* DtReflectedTug__PusherList::fullClassName()
{
    return "PortEntity.Vessel.Tug/Pusher";
}
 
DtReflectedTug__Pusher* DtReflectedTug__PusherList::first() const
{
    return static_cast<DtReflectedTug__Pusher*>(findAfter(0));
}
 
DtReflectedTug__Pusher* DtReflectedTug__PusherList::next(const DtReflectedTug__Pusher* object) const
{
    return static_cast<DtReflectedTug__Pusher*>(findAfter(object->objectId()));
}
 
DtReflectedTug__Pusher* DtReflectedTug__PusherList::lookup(DtExerciseObjectId id) const
{
    return static_cast<DtReflectedTug__Pusher*>(find(id));
}
 
void DtReflectedTug__PusherList::addAdditionCallback(DtTug__PusherCallbackFunction callback, void* user)
{
    addCallback(Addition, callback, user);
}
 
void DtReflectedTug__PusherList::removeAdditionCallback(DtTug__PusherCallbackFunction callback, void* user)
{
    removeCallback(Addition, callback, user);
}
 
void DtReflectedTug__PusherList::addUpdateCallback(DtTug__PusherCallbackFunction callback, void* user)
{
    addCallback(Update, callback, user);
}
 
void DtReflectedTug__PusherList::removeUpdateCallback(DtTug__PusherCallbackFunction callback, void* user)
{
    removeCallback(Update, callback, user);
}
 
void DtReflectedTug__PusherList::addRemovalCallback(DtTug__PusherCallbackFunction callback, void* user)
{
    addCallback(Removal, callback, user);
}
 
void DtReflectedTug__PusherList::removeRemovalCallback(DtTug__PusherCallbackFunction callback, void* user)
{
    removeCallback(Removal, callback, user);
}
 
std::unique_ptr<DtHlaReflectedObject> DtReflectedTug__PusherList::makeObject(
    DtExerciseObjectId id, const std::string& name) const
{
    return std::unique_ptr<DtHlaReflectedObject>(new DtReflectedTug__Pusher(id, name));
}

