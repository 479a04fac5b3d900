// Generated from case; the next generation writes it anew.
 
#include "reflectedWeatherListDIS.h"
 
#include "netWeatherPdu.h"
 
DtReflectedWeatherList::DtReflectedWeatherList(DtExerciseConn* exerciseConn)
    : DtDisReflectedList(exerciseConn, DtNetWeatherPdu::theKind)
{
}
 
DtReflectedWeather* DtReflectedWeatherList::first() const
{
    return static_cast<DtReflectedWeather*>(findAfter(0));
}
 
DtReflectedWeather* DtReflectedWeatherList::next(const DtReflectedWeather* object) const
{
    return static_cast<DtReflectedWeather*>(findAfter(object->objectId()));
}
 
DtReflectedWeather* DtReflectedWeatherList::lookup(DtExerciseObjectId id) const
{
    return static_cast<DtReflectedWeather*>(find(id));
}
 
void DtReflectedWeatherList::addAdditionCallback(DtWeatherCallbackFunction callback, void* user)
{
    addCallback(Addition, callback, user);
}
 
void DtReflectedWeatherList::removeAdditionCallback(DtWeatherCallbackFunction callback, void* user)
{
    removeCallback(Addition, callback, user);
}
 
void DtReflectedWeatherList::addUpdateCallback(DtWeatherCallbackFunction callback, void* user)
{
    addCallback(Update, callback, user);
}
 
void DtReflectedWeatherList::removeUpdateCallback(DtWeatherCallbackFunction callback, void* user)
{
    removeCallback(Update, callback, user);
}
 
void DtReflectedWeatherList::addRemovalCallback(DtWeatherCallbackFunction callback, void* user)
{
    addCallback(Removal, callback, user);
}
 
void DtReflectedWeatherList::removeRemovalCallback(DtWeatherCallbackFunction callback, void* user)
{
    removeCallback(Removal, callback, user);
}
 
std::unique_ptr<DtDisReflectedObject> DtReflectedWeatherList::makeObject(
    DtExerciseObjectId id, const std::string& name) const
{
    return std::unique_ptr<DtDisReflectedObject>(new DtReflectedWeather(id, name));
}

