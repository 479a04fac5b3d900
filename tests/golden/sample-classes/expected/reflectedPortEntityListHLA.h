#ifndef DT_DLL_CASE_DtReflectedPortEntityList_H
#define DT_DLL_CASE_DtReflectedPortEntityList_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/hlaReflectedList.h>
 
#include "reflectedPortEntityHLA.h"
#include "dllExport.h"
 
#include <memory>
#include <string>
 
// Every PortEntity that others publish, subclasses of it included. The connection must outlive the list.
class DT_DLL_CASE DtReflectedPortEntityList : public DtHlaReflectedList
{
public:
    explicit DtReflectedPortEntityList(DtExerciseConn* exerciseConn);
 
    static const char* fullClassName();
 
    // Null at the end, or if there is none.
    DtReflectedPortEntity* first() const;
    DtReflectedPortEntity* next(const DtReflectedPortEntity* object) const;
    DtReflectedPortEntity* lookup(DtExerciseObjectId id) const;
 
    // Called while DtExerciseConn::drainInput() runs: after an object came or was updated, and before it goes.
    void addAdditionCallback(DtPortEntityCallbackFunction callback, void* user);
    void removeAdditionCallback(DtPortEntityCallbackFunction callback, void* user);
    void addUpdateCallback(DtPortEntityCallbackFunction callback, void* user);
    void removeUpdateCallback(DtPortEntityCallbackFunction callback, void* user);
    void addRemovalCallback(DtPortEntityCallbackFunction callback, void* user);
    void removeRemovalCallback(DtPortEntityCallbackFunction callback, void* user);
 
protected:
    std::unique_ptr<DtHlaReflectedObject> makeObject(DtExerciseObjectId id, const std::string& name) const override;
};

#endif
