#ifndef DT_DLL_CASE_DtReflectedVesselList_H
#define DT_DLL_CASE_DtReflectedVesselList_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/hlaReflectedList.h>
 
#include "reflectedVesselHLA.h"
#include "dllExport.h"
 
#include <memory>
#include <string>
 
// Every Vessel that others publish, subclasses of it included. The connection must outlive the list.
class DT_DLL_CASE DtReflectedVesselList : public DtHlaReflectedList
{
public:
    explicit DtReflectedVesselList(DtExerciseConn* exerciseConn);
 
    static const char* fullClassName();
 
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
    std::unique_ptr<DtHlaReflectedObject> makeObject(DtExerciseObjectId id, const std::string& name) const override;
};

#endif
