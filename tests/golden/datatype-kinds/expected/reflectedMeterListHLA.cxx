// Generated from case; the next generation writes it anew.
 
#include "reflectedMeterListHLA.h"
 
DtReflectedMeterList::DtReflectedMeterList(DtExerciseConn* exerciseConn)
    : DtHlaReflectedList(exerciseConn, fullClassName())
{
}
 
const char* DtReflectedMeterList::fullClassName()
{
    return "Meter";
}
 
DtReflectedMeter* DtReflectedMeterList::first() const
{
    return static_cast<DtReflectedMeter*>(findAfter(0));
}
 
DtReflectedMeter* DtReflectedMeterList::next(const DtReflectedMeter* object) const
{
    return static_cast<DtReflectedMeter*>(findAfter(object->objectId()));
}
 
DtReflectedMeter* DtReflectedMeterList::lookup(DtExerciseObjectId id) const
{
    return static_cast<DtReflectedMeter*>(find(id));
}
 
void DtReflectedMeterList::addAdditionCallback(DtMeterCallbackFunction callback, void* user)
{
    addCallback(Addition, callback, user);
}
 
void DtReflectedMeterList::removeAdditionCallback(DtMeterCallbackFunction callback, void* user)
{
    removeCallback(Addition, callback, user);
}
 
void DtReflectedMeterList::addUpdateCallback(DtMeterCallbackFunction callback, void* user)
{
    addCallback(Update, callback, user);
}
 
void DtReflectedMeterList::removeUpdateCallback(DtMeterCallbackFunction callback, void* user)
{
    removeCallback(Update, callback, user);
}
 
void DtReflectedMeterList::addRemovalCallback(DtMeterCallbackFunction callback, void* user)
{
    addCallback(Removal, callback, user);
}
 
void DtReflectedMeterList::removeRemovalCallback(DtMeterCallbackFunction callback, void* user)
{
    removeCallback(Removal, callback, user);
}
 
std::unique_ptr<DtHlaReflectedObject> DtReflectedMeterList::makeObject(
    DtExerciseObjectId id, const std::string& name) const
{
    return std::unique_ptr<DtHlaReflectedObject>(new DtReflectedMeter(id, name));
}

