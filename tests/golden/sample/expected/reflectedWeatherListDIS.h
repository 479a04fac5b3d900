#ifndef DT_DLL_CASE_DtReflectedWeatherList_DIS_H
#define DT_DLL_CASE_DtReflectedWeatherList_DIS_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/disReflectedList.h>
 
#include "reflectedWeatherDIS.h"
#include "dllExport.h"
 
#include <memory>
#include <string>
 
// Every HLAobjectRoot.Weather that others tell of by its kind of protocol data unit; a subclass has a list of its own. The
// connection must outlive the list.
class DT_DLL_CASE DtReflectedWeatherList : public DtDisReflectedList
{
public:
    explicit DtReflectedWeatherList(DtExerciseConn* exerciseConn);
 
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
    std::unique_ptr<DtDisReflectedObject> makeObject(DtExerciseObjectId id, const std::string& name) const override;
};

#endif
