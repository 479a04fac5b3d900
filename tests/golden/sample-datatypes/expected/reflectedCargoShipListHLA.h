#ifndef DT_DLL_CASE_DtReflectedCargoShipList_H
#define DT_DLL_CASE_DtReflectedCargoShipList_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/hlaReflectedList.h>
 
#include "reflectedCargoShipHLA.h"
#include "dllExport.h"
 
#include <memory>
#include <string>
 
// Every CargoShip that others publish, subclasses of it included. The connection must outlive the list.
class DT_DLL_CASE DtReflectedCargoShipList : public DtHlaReflectedList
{
public:
    explicit DtReflectedCargoShipList(DtExerciseConn* exerciseConn);
 
    static const char* fullClassName();
 
    // Null at the end, or if there is none.
    DtReflectedCargoShip* first() const;
    DtReflectedCargoShip* next(const DtReflectedCargoShip* object) const;
    DtReflectedCargoShip* lookup(DtExerciseObjectId id) const;
 
    // Called while DtExerciseConn::drainInput() runs: after an object came or was updated, and before it goes.
    void addAdditionCallback(DtCargoShipCallbackFunction callback, void* user);
    void removeAdditionCallback(DtCargoShipCallbackFunction callback, void* user);
    void addUpdateCallback(DtCargoShipCallbackFunction callback, void* user);
    void removeUpdateCallback(DtCargoShipCallbackFunction callback, void* user);
    void addRemovalCallback(DtCargoShipCallbackFunction callback, void* user);
    void removeRemovalCallback(DtCargoShipCallbackFunction callback, void* user);
 
protected:
    std::unique_ptr<DtHlaReflectedObject> makeObject(DtExerciseObjectId id, const std::string& name) const override;
};

#endif
