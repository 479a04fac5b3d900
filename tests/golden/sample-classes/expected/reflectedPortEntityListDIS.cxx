// Generated from case; the next generation writes it anew.
 
#include "reflectedPortEntityListDIS.h"
 
#include "netPortEntityPdu.h"
 
DtReflectedPortEntityList::DtReflectedPortEntityList(DtExerciseConn* exerciseConn)
    : DtDisReflectedList(exerciseConn, DtNetPortEntityPdu::theKind)
{
}
 
DtReflectedPortEntity* DtReflectedPortEntityList::first() const
{
    return static_cast<DtReflectedPortEntity*>(findAfter(0));
}
 
DtReflectedPortEntity* DtReflectedPortEntityList::next(const DtReflectedPortEntity* object) const
{
    return static_cast<DtReflectedPortEntity*>(findAfter(object->objectId()));
}
 
DtReflectedPortEntity* DtReflectedPortEntityList::lookup(DtExerciseObjectId id) const
{
    return static_cast<DtReflectedPortEntity*>(find(id));
}
 
void DtReflectedPortEntityList::addAdditionCallback(DtPortEntityCallbackFunction callback, void* user)
{
    addCallback(Addition, callback, user);
}
 
void DtReflectedPortEntityList::removeAdditionCallback(DtPortEntityCallbackFunction callback, void* user)
{
    removeCallback(Addition, callback, user);
}
 
void DtReflectedPortEntityList::addUpdateCallback(DtPortEntityCallbackFunction callback, void* user)
{
    addCallback(Update, callback, user);
}
 
void DtReflectedPortEntityList::removeUpdateCallback(DtPortEntityCallbackFunction callback, void* user)
{
    removeCallback(Update, callback, user);
}
 
void DtReflectedPortEntityList::addRemovalCallback(DtPortEntityCallbackFunction callback, void* user)
{
    addCallback(Removal, callback, user);
}
 
void DtReflectedPortEntityList::removeRemovalCallback(DtPortEntityCallbackFunction callback, void* user)
{
    removeCallback(Removal, callback, user);
}
 
std::unique_ptr<DtDisReflectedObject> DtReflectedPortEntityList::makeObject(
    DtExerciseObjectId id, const std::string& name) const
{
    return std::unique_ptr<DtDisReflectedObject>(new DtReflectedPortEntity(id, name));
}

