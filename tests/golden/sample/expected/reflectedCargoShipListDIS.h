#ifndef DT_DLL_CASE_DtReflectedCargoShipList_DIS_H
#define DT_DLL_CASE_DtReflectedCargoShipList_DIS_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/disReflectedList.h>
 
#include "reflectedCargoShipDIS.h"
#include "dllExport.h"
 
#include <memory>
#include <string>
 
// Every HLAobjectRoot.PortEntity.Vessel.CargoShip that others tell of by its kind of protocol data unit; a subclass has a list of its own. The
// connection must outlive the list.
class DT_DLL_CASE DtReflectedCargoShipList : public DtDisReflectedList
{
public:
    explicit DtReflectedCargoShipList(DtExerciseConn* exerciseConn);
 
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
    std::unique_ptr<DtDisReflectedObject> makeObject(DtExerciseObjectId id, const std::string& name) const override;
};

#endif
