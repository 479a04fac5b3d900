#ifndef DT_DLL_CASE_DtReflectedAnimalList_H
#define DT_DLL_CASE_DtReflectedAnimalList_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/hlaReflectedList.h>
 
#include "reflectedAnimalHLA.h"
#include "dllExport.h"
 
#include <memory>
#include <string>
 
// Every Animal that others publish, subclasses of it included. The connection must outlive the list.
class DT_DLL_CASE DtReflectedAnimalList : public DtHlaReflectedList
{
public:
    explicit DtReflectedAnimalList(DtExerciseConn* exerciseConn);
 
    static const char* fullClassName();
 
    // Null at the end, or if there is none.
    DtReflectedAnimal* first() const;
    DtReflectedAnimal* next(const DtReflectedAnimal* object) const;
    DtReflectedAnimal* lookup(DtExerciseObjectId id) const;
 
    // Called while DtExerciseConn::drainInput() runs: after an object came or was updated, and before it goes.
    void addAdditionCallback(DtAnimalCallbackFunction callback, void* user);
    void removeAdditionCallback(DtAnimalCallbackFunction callback, void* user);
    void addUpdateCallback(DtAnimalCallbackFunction callback, void* user);
    void removeUpdateCallback(DtAnimalCallbackFunction callback, void* user);
    void addRemovalCallback(DtAnimalCallbackFunction callback, void* user);
    void removeRemovalCallback(DtAnimalCallbackFunction callback, void* user);
 
protected:
    std::unique_ptr<DtHlaReflectedObject> makeObject(DtExerciseObjectId id, const std::string& name) const override;
};

#endif
