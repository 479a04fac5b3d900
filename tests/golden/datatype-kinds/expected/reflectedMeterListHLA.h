#ifndef DT_DLL_CASE_DtReflectedMeterList_H
#define DT_DLL_CASE_DtReflectedMeterList_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/hlaReflectedList.h>
 
#include "reflectedMeterHLA.h"
#include "dllExport.h"
 
#include <memory>
#include <string>
 
// Every Meter that others publish, subclasses of it included. The connection must outlive the list.
class DT_DLL_CASE DtReflectedMeterList : public DtHlaReflectedList
{
public:
    explicit DtReflectedMeterList(DtExerciseConn* exerciseConn);
 
    static const char* fullClassName();
 
    // Null at the end, or if there is none.
    DtReflectedMeter* first() const;
    DtReflectedMeter* next(const DtReflectedMeter* object) const;
    DtReflectedMeter* lookup(DtExerciseObjectId id) const;
 
    // Called while DtExerciseConn::drainInput() runs: after an object came or was updated, and before it goes.
    void addAdditionCallback(DtMeterCallbackFunction callback, void* user);
    void removeAdditionCallback(DtMeterCallbackFunction callback, void* user);
    void addUpdateCallback(DtMeterCallbackFunction callback, void* user);
    void removeUpdateCallback(DtMeterCallbackFunction callback, void* user);
    void addRemovalCallback(DtMeterCallbackFunction callback, void* user);
    void removeRemovalCallback(DtMeterCallbackFunction callback, void* user);
 
protected:
    std::unique_ptr<DtHlaReflectedObject> makeObject(DtExerciseObjectId id, const std::string& name) const override;
};

#endif
