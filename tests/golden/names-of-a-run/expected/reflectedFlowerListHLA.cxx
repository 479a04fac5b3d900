// Generated from case; the next generation writes it anew.
 
#include "beds/reflectedFlowerListHLA.h"
 
namespace garden
{
 
DtReflectedQxFlowerList::DtReflectedQxFlowerList(DtExerciseConn* exerciseConn)
    : DtHlaReflectedList(exerciseConn, fullClassName())
{
}
 
const char* DtReflectedQxFlowerList::fullClassName()
{
    return "Flower";
}
 
DtReflectedQxFlower* DtReflectedQxFlowerList::first() const
{
    return static_cast<DtReflectedQxFlower*>(findAfter(0));
}
 
DtReflectedQxFlower* DtReflectedQxFlowerList::next(const DtReflectedQxFlower* object) const
{
    return static_cast<DtReflectedQxFlower*>(findAfter(object->objectId()));
}
 
DtReflectedQxFlower* DtReflectedQxFlowerList::lookup(DtExerciseObjectId id) const
{
    return static_cast<DtReflectedQxFlower*>(find(id));
}
 
void DtReflectedQxFlowerList::addAdditionCallback(DtQxFlowerCallbackFunction callback, void* user)
{
    addCallback(Addition, callback, user);
}
 
void DtReflectedQxFlowerList::removeAdditionCallback(DtQxFlowerCallbackFunction callback, void* user)
{
    removeCallback(Addition, callback, user);
}
 
void DtReflectedQxFlowerList::addUpdateCallback(DtQxFlowerCallbackFunction callback, void* user)
{
    addCallback(Update, callback, user);
}
 
void DtReflectedQxFlowerList::removeUpdateCallback(DtQxFlowerCallbackFunction callback, void* user)
{
    removeCallback(Update, callback, user);
}
 
void DtReflectedQxFlowerList::addRemovalCallback(DtQxFlowerCallbackFunction callback, void* user)
{
    addCallback(Removal, callback, user);
}
 
void DtReflectedQxFlowerList::removeRemovalCallback(DtQxFlowerCallbackFunction callback, void* user)
{
    removeCallback(Removal, callback, user);
}
 
std::unique_ptr<DtHlaReflectedObject> DtReflectedQxFlowerList::makeObject(
    DtExerciseObjectId id, const std::string& name) const
{
    return std::unique_ptr<DtHlaReflectedObject>(new DtReflectedQxFlower(id, name));
}

} // namespace garden

