// Generated from case; the next generation writes it anew.
 
#include "reflectedWeatherListHLA.h"
 
DtReflectedWeatherList::DtReflectedWeatherList(DtExerciseConn* exerciseConn)
    : DtHlaReflectedList(exerciseConn, fullClassName())
{
}
 
const char* DtReflectedWeatherList::fullClassName()
{
    return "Weather";
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
 
std::unique_ptr<DtHlaReflectedObject> DtReflectedWeatherList::makeObject(
    DtExerciseObjectId id, const std::string& name) const
{
    return std::unique_ptr<DtHlaReflectedObject>(new DtReflectedWeather(id, name));
}

