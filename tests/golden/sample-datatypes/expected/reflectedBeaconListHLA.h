#ifndef DT_DLL_CASE_DtReflectedBeaconList_H
#define DT_DLL_CASE_DtReflectedBeaconList_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/hlaReflectedList.h>
 
#include "reflectedBeaconHLA.h"
#include "dllExport.h"
 
#include <memory>
#include <string>
 
// Every Beacon that others publish, subclasses of it included. The connection must outlive the list.
class DT_DLL_CASE DtReflectedBeaconList : public DtHlaReflectedList
{
public:
    explicit DtReflectedBeaconList(DtExerciseConn* exerciseConn);
 
    static const char* fullClassName();
 
    // Null at the end, or if there is none.
    DtReflectedBeacon* first() const;
    DtReflectedBeacon* next(const DtReflectedBeacon* object) const;
    DtReflectedBeacon* lookup(DtExerciseObjectId id) const;
 
    // Called while DtExerciseConn::drainInput() runs: after an object came or was updated, and before it goes.
    void addAdditionCallback(DtBeaconCallbackFunction callback, void* user);
    void removeAdditionCallback(DtBeaconCallbackFunction callback, void* user);
    void addUpdateCallback(DtBeaconCallbackFunction callback, void* user);
    void removeUpdateCallback(DtBeaconCallbackFunction callback, void* user);
    void addRemovalCallback(DtBeaconCallbackFunction callback, void* user);
    void removeRemovalCallback(DtBeaconCallbackFunction callback, void* user);
 
protected:
    std::unique_ptr<DtHlaReflectedObject> makeObject(DtExerciseObjectId id, const std::string& name) const override;
};

#endif
