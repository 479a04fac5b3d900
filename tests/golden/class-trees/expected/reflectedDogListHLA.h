#ifndef DT_DLL_CASE_DtReflectedDogList_H
#define DT_DLL_CASE_DtReflectedDogList_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/hlaReflectedList.h>
 
#include "reflectedDogHLA.h"
#include "dllExport.h"
 
#include <memory>
#include <string>
 
// Every Dog that others publish, subclasses of it included. The connection must outlive the list.
class DT_DLL_CASE DtReflectedDogList : public DtHlaReflectedList
{
public:
    explicit DtReflectedDogList(DtExerciseConn* exerciseConn);
 
    static const char* fullClassName();
 
    // Null at the end, or if there is none.
    DtReflectedDog* first() const;
    DtReflectedDog* next(const DtReflectedDog* object) const;
    DtReflectedDog* lookup(DtExerciseObjectId id) const;
 
    // Called while DtExerciseConn::drainInput() runs: after an object came or was updated, and before it goes.
    void addAdditionCallback(DtDogCallbackFunction callback, void* user);
    void removeAdditionCallback(DtDogCallbackFunction callback, void* user);
    void addUpdateCallback(DtDogCallbackFunction callback, void* user);
    void removeUpdateCallback(DtDogCallbackFunction callback, void* user);
    void addRemovalCallback(DtDogCallbackFunction callback, void* user);
    void removeRemovalCallback(DtDogCallbackFunction callback, void* user);
 
protected:
    std::unique_ptr<DtHlaReflectedObject> makeObject(DtExerciseObjectId id, const std::string& name) const override;
};

#endif
