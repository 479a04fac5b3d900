#ifndef DT_DLL_CASE_DtReflectedVesselList_DIS_H
#define DT_DLL_CASE_DtReflectedVesselList_DIS_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/disReflectedList.h>
 
#include "reflectedVesselDIS.h"
#include "dllExport.h"
 
#include <memory>
#include <string>
 
// Every HLAobjectRoot.PortEntity.Vessel that others tell of by its kind of protocol data unit; a subclass has a list of its own. The
// connection must outlive the list.
class DT_DLL_CASE DtReflectedVesselList : public DtDisReflectedList
{
public:
    explicit DtReflectedVesselList(DtExerciseConn* exerciseConn);
 
    // Null at the end, or if there is none.
    DtReflectedVessel* first() const;
    DtReflectedVessel* next(const DtReflectedVessel* object) const;
    DtReflectedVessel* lookup(DtExerciseObjectId id) const;
 
    // Called while DtExerciseConn::drainInput() runs: after an object came or was updated, and before it goes.
    void addAdditionCallback(DtVesselCallbackFunction callback, void* user);
    void removeAdditionCallback(DtVesselCallbackFunction callback, void* user);
    void addUpdateCallback(DtVesselCallbackFunction callback, void* user);
    void removeUpdateCallback(DtVesselCallbackFunction callback, void* user);
    void addRemovalCallback(DtVesselCallbackFunction callback, void* user);
    void removeRemovalCallback(DtVesselCallbackFunction callback, void* user);
 
protected:
    std::unique_ptr<DtDisReflectedObject> makeObject(DtExerciseObjectId id, const std::string& name) const override;
};

#endif
