#ifndef DT_DLL_CASE_DtReflectedBerthList_H
#define DT_DLL_CASE_DtReflectedBerthList_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/hlaReflectedList.h>
 
#include "reflectedBerthHLA.h"
#include "dllExport.h"
 
#include <memory>
#include <string>
 
// Every Berth that others publish, subclasses of it included. The connection must outlive the list.
class DT_DLL_CASE DtReflectedBerthList : public DtHlaReflectedList
{
public:
    explicit DtReflectedBerthList(DtExerciseConn* exerciseConn);
 
    static const char* fullClassName();
 
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
    std::unique_ptr<DtHlaReflectedObject> makeObject(DtExerciseObjectId id, const std::string& name) const override;
};

#endif
