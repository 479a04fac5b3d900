// Generated from case; the next generation writes it anew.
 
#include "reflectedDogListHLA.h"
 
DtReflectedDogList::DtReflectedDogList(DtExerciseConn* exerciseConn)
    : DtHlaReflectedList(exerciseConn, fullClassName())
{
}
 
const char* DtReflectedDogList::fullClassName()
{
    return "Animal.Dog";
}
 
DtReflectedDog* DtReflectedDogList::first() const
{
    return static_cast<DtReflectedDog*>(findAfter(0));
}
 
DtReflectedDog* DtReflectedDogList::next(const DtReflectedDog* object) const
{
    return static_cast<DtReflectedDog*>(findAfter(object->objectId()));
}
 
DtReflectedDog* DtReflectedDogList::lookup(DtExerciseObjectId id) const
{
    return static_cast<DtReflectedDog*>(find(id));
}
 
void DtReflectedDogList::addAdditionCallback(DtDogCallbackFunction callback, void* user)
{
    addCallback(Addition, callback, user);
}
 
void DtReflectedDogList::removeAdditionCallback(DtDogCallbackFunction callback, void* user)
{
    removeCallback(Addition, callback, user);
}
 
void DtReflectedDogList::addUpdateCallback(DtDogCallbackFunction callback, void* user)
{
    addCallback(Update, callback, user);
}
 
void DtReflectedDogList::removeUpdateCallback(DtDogCallbackFunction callback, void* user)
{
    removeCallback(Update, callback, user);
}
 
void DtReflectedDogList::addRemovalCallback(DtDogCallbackFunction callback, void* user)
{
    addCallback(Removal, callback, user);
}
 
void DtReflectedDogList::removeRemovalCallback(DtDogCallbackFunction callback, void* user)
{
    removeCallback(Removal, callback, user);
}
 
std::unique_ptr<DtHlaReflectedObject> DtReflectedDogList::makeObject(
    DtExerciseObjectId id, const std::string& name) const
{
    return std::unique_ptr<DtHlaReflectedObject>(new DtReflectedDog(id, name));
}

