#ifndef DT_DLL_CASE_DtReflectedTug__PusherList_DIS_H
#define DT_DLL_CASE_DtReflectedTug__PusherList_DIS_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/disReflectedList.h>
 
#include "reflectedTug__PusherDIS.h"
#include "dllExport.h"
 
#include <memory>
#include <string>
 
// Every HLAobjectRoot.PortEntity.Vessel.Tug/Pusher that others tell of by its kind of protocol data unit; a subclass has a list of its own. The
// connection must outlive the list.
class DT_DLL_CASE DtReflectedTug__PusherList : public DtDisReflectedList
{
public:
    explicit DtReflectedTug__PusherList(DtExerciseConn* exerciseConn);
 
    // Null at the end, or if there is none.
    DtReflectedTug__Pusher* first() const;
    DtReflectedTug__Pusher* next(const DtReflectedTug__Pusher* object) const;
    DtReflectedTug__Pusher* lookup(DtExerciseObjectId id) const;
 
    // Called while DtExerciseConn::drainInput() runs: after an object came or was updated, and before it goes.
    void addAdditionCallback(DtTug__PusherCallbackFunction callback, void* user);
    void removeAdditionCallback(DtTug__PusherCallbackFunction callback, void* user);
    void addUpdateCallback(DtTug__PusherCallbackFunction callback, void* user);
    void removeUpdateCallback(DtTug__PusherCallbackFunction callback, void* user);
    void addRemovalCallback(DtTug__PusherCallbackFunction callback, void* user);
    void removeRemovalCallback(DtTug__PusherCallbackFunction callback, void* user);
 
protected:
    std::unique_ptr<DtDisReflectedObject> makeObject(DtExerciseObjectId id, const std::string& name) const override;
};

#endif
