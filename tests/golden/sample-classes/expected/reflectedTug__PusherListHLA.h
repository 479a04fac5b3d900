#ifndef DT_DLL_CASE_DtReflectedTug__PusherList_H
#define DT_DLL_CASE_DtReflectedTug__PusherList_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/hlaReflectedList.h>
 
#include "reflectedTug__PusherHLA.h"
#include "dllExport.h"
 
#include <memory>
#include <string>
 
// Every Tug__Pusher that others publish, subclasses of it included. The connection must outlive the list.
class DT_DLL_CASE DtReflectedTug__PusherList : public DtHlaReflectedList
{
public:
    explicit DtReflectedTug__PusherList(DtExerciseConn* exerciseConn);
 
    static const char* fullClassName();
 
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
    std::unique_ptr<DtHlaReflectedObject> makeObject(DtExerciseObjectId id, const std::string& name) const override;
};

#endif
