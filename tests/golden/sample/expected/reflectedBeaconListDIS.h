#ifndef DT_DLL_CASE_DtReflectedBeaconList_DIS_H
#define DT_DLL_CASE_DtReflectedBeaconList_DIS_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/disReflectedList.h>
 
#include "reflectedBeaconDIS.h"
#include "dllExport.h"
 
#include <memory>
#include <string>
 
// Every HLAobjectRoot.PortEntity.Beacon that others tell of by its kind of protocol data unit; a subclass has a list of its own. The
// connection must outlive the list.
class DT_DLL_CASE DtReflectedBeaconList : public DtDisReflectedList
{
public:
    explicit DtReflectedBeaconList(DtExerciseConn* exerciseConn);
 
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
    std::unique_ptr<DtDisReflectedObject> makeObject(DtExerciseObjectId id, const std::string& name) const override;
};

#endif
