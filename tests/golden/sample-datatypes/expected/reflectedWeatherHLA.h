#ifndef DT_DLL_CASE_DtReflectedWeather_H
#define DT_DLL_CASE_DtReflectedWeather_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/hlaReflectedObject.h>
 
#include "weatherStateRepository.h"
#include "dllExport.h"
 
#include <string>
 
class DtReflectedWeather;
typedef void (*DtWeatherCallbackFunction)(DtReflectedWeather* object, void* user);
 
// A Weather that someone else publishes. DtReflectedWeatherList makes it and keeps it up to date.
class DT_DLL_CASE DtReflectedWeather : public DtHlaReflectedObject
{
public:
    DtReflectedWeather(DtExerciseObjectId id, const std::string& name);
 
    // The object's state, under a long and a short name.
    DtWeatherStateRepository* weatherStateRep() const;
    DtWeatherStateRepository* wsr() const;
};

#endif
