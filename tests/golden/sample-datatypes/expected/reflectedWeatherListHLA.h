#ifndef DT_DLL_CASE_DtReflectedWeatherList_H
#define DT_DLL_CASE_DtReflectedWeatherList_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/hlaReflectedList.h>
 
#include "reflectedWeatherHLA.h"
#include "dllExport.h"
 
#include <memory>
#include <string>
 
// Every Weather that others publish, subclasses of it included. The connection must outlive the list.
class DT_DLL_CASE DtReflectedWeatherList : public DtHlaReflectedList
{
public:
    explicit DtReflectedWeatherList(DtExerciseConn* exerciseConn);
 
    static const char* fullClassName();
 
    // Null at the end, or if there is none.
    DtReflectedWeather* first() const;
    DtReflectedWeather* next(const DtReflectedWeather* object) const;
    DtReflectedWeather* lookup(DtExerciseObjectId id) const;
 
    // Called while DtExerciseConn::drainInput() runs: after an object came or was updated, and before it goes.
    void addAdditionCallback(DtWeatherCallbackFunction callback, void* user);
    void removeAdditionCallback(DtWeatherCallbackFunction callback, void* user);
    void addUpdateCallback(DtWeatherCallbackFunction callback, void* user);
    void removeUpdateCallback(DtWeatherCallbackFunction callback, void* user);
    void addRemovalCallback(DtWeatherCallbackFunction callback, void* user);
    void removeRemovalCallback(DtWeatherCallbackFunction callback, void* user);
 
protected:
    std::unique_ptr<DtHlaReflectedObject> makeObject(DtExerciseObjectId id, const std::string& name) const override;
};

#endif
