// Generated from case; the next generation writes it anew.
 
#include "reflectedAnimalListHLA.h"
 
DtReflectedAnimalList::DtReflectedAnimalList(DtExerciseConn* exerciseConn)
    : DtHlaReflectedList(exerciseConn, fullClassName())
{
}
 
const char* DtReflectedAnimalList::fullClassName()
{
    return "Animal";
}
 
DtReflectedAnimal* DtReflectedAnimalList::first() const
{
    return static_cast<DtReflectedAnimal*>(findAfter(0));
}
 
DtReflectedAnimal* DtReflectedAnimalList::next(const DtReflectedAnimal* object) const
{
    return static_cast<DtReflectedAnimal*>(findAfter(object->objectId()));
}
 
DtReflectedAnimal* DtReflectedAnimalList::lookup(DtExerciseObjectId id) const
{
    return static_cast<DtReflectedAnimal*>(find(id));
}
 
void DtReflectedAnimalList::addAdditionCallback(DtAnimalCallbackFunction callback, void* user)
{
    addCallback(Addition, callback, user);
}
 
void DtReflectedAnimalList::removeAdditionCallback(DtAnimalCallbackFunction callback, void* user)
{
    removeCallback(Addition, callback, user);
}
 
void DtReflectedAnimalList::addUpdateCallback(DtAnimalCallbackFunction callback, void* user)
{
    addCallback(Update, callback, user);
}
 
void DtReflectedAnimalList::removeUpdateCallback(DtAnimalCallbackFunction callback, void* user)
{
    removeCallback(Update, callback, user);
}
 
void DtReflectedAnimalList::addRemovalCallback(DtAnimalCallbackFunction callback, void* user)
{
    addCallback(Removal, callback, user);
}
 
void DtReflectedAnimalList::removeRemovalCallback(DtAnimalCallbackFunction callback, void* user)
{
    removeCallback(Removal, callback, user);
}
 
std::unique_ptr<DtHlaReflectedObject> DtReflectedAnimalList::makeObject(
    DtExerciseObjectId id, const std::string& name) const
{
    return std::unique_ptr<DtHlaReflectedObject>(new DtReflectedAnimal(id, name));
}

