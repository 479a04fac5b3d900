#ifndef DT_DLL_CASE_DtReflectedBerthList_DIS_H
#define DT_DLL_CASE_DtReflectedBerthList_DIS_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/disReflectedList.h>
 
#include "reflectedBerthDIS.h"
#include "dllExport.h"
 
#include <memory>
#include <string>
 
// Every HLAobjectRoot.PortEntity.Berth that others tell of by its kind of protocol data unit; a subclass has a list of its own. The
// connection must outlive the list.
class DT_DLL_CASE DtReflectedBerthList : public DtDisReflectedList
{
public:
    explicit DtReflectedBerthList(DtExerciseConn* exerciseConn);
 
    // Null at the end, or if there is none.
    DtReflectedBerth* first() const;
    DtReflectedBerth* next(const DtReflectedBerth* object) const;
    DtReflectedBerth* lookup(DtExerciseObjectId id) const;
 
    // Called while DtExerciseConn::drainInput() runs: after an object came or was updated, and before it goes.
    void addAdditionCallback(DtBerthCallbackFunction callback, void* user);
    void removeAdditionCallback(DtBerthCallbackFunction callback, void* user);
    void addUpdateCallback(DtBerthCallbackFunction callback, void* user);
    void removeUpdateCallback(DtBerthCallbackFunction callback, void* user);
    void addRemovalCallback(DtBerthCallbackFunction callback, void* user);
    void removeRemovalCallback(DtBerthCallbackFunction callback, void* user);
 
protected:
    std::unique_ptr<DtDisReflectedObject> makeObject(DtExerciseObjectId id, const std::string& name) const override;
};

#endif
