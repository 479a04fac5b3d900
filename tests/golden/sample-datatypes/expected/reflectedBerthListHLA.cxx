// Generated from case; the next generation writes it anew.
 
#include "reflectedBerthListHLA.h"
 
DtReflectedBerthList::DtReflectedBerthList(DtExerciseConn* exerciseConn)
    : DtHlaReflectedList(exerciseConn, fullClassName())
{
}
 
const char* DtReflectedBerthList::fullClassName()
{
    return "PortEntity.Berth";
}
 
DtReflectedBerth* DtReflectedBerthList::first() const
{
    return static_cast<DtReflectedBerth*>(findAfter(0));
}
 
DtReflectedBerth* DtReflectedBerthList::next(const DtReflectedBerth* object) const
{
    return static_cast<DtReflectedBerth*>(findAfter(object->objectId()));
}
 
DtReflectedBerth* DtReflectedBerthList::lookup(DtExerciseObjectId id) const
{
    return static_cast<DtReflectedBerth*>(find(id));
}
 
void DtReflectedBerthList::addAdditionCallback(DtBerthCallbackFunction callback, void* user)
{
    addCallback(Addition, callback, user);
}
 
void DtReflectedBerthList::removeAdditionCallback(DtBerthCallbackFunction callback, void* user)
{
    removeCallback(Addition, callback, user);
}
 
void DtReflectedBerthList::addUpdateCallback(DtBerthCallbackFunction callback, void* user)
{
    addCallback(Update, callback, user);
}
 
void DtReflectedBerthList::removeUpdateCallback(DtBerthCallbackFunction callback, void* user)
{
    removeCallback(Update, callback, user);
}
 
void DtReflectedBerthList::addRemovalCallback(DtBerthCallbackFunction callback, void* user)
{
    addCallback(Removal, callback, user);
}
 
void DtReflectedBerthList::removeRemovalCallback(DtBerthCallbackFunction callback, void* user)
{
    removeCallback(Removal, callback, user);
}
 
std::unique_ptr<DtHlaReflectedObject> DtReflectedBerthList::makeObject(
    DtExerciseObjectId id, const std::string& name) const
{
    return std::unique_ptr<DtHlaReflectedObject>(new DtReflectedBerth(id, name));
}

