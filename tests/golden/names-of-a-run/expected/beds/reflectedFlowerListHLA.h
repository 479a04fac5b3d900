#ifndef DT_DLL_CASE_DtReflectedQxFlowerList_H
#define DT_DLL_CASE_DtReflectedQxFlowerList_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/hlaReflectedList.h>
 
#include "beds/reflectedFlowerHLA.h"
#include "dllExport.h"
 
#include <memory>
#include <string>
 
namespace garden
{
 
// Every Flower that others publish, subclasses of it included. The connection must outlive the list.
class DT_DLL_CASE DtReflectedQxFlowerList : public DtHlaReflectedList
{
public:
    explicit DtReflectedQxFlowerList(DtExerciseConn* exerciseConn);
 
    static const char* fullClassName();
 
    // Null at the end, or if there is none.
    DtReflectedQxFlower* first() const;
    DtReflectedQxFlower* next(const DtReflectedQxFlower* object) const;
    DtReflectedQxFlower* lookup(DtExerciseObjectId id) const;
 
    // Called while DtExerciseConn::drainInput() runs: after an object came or was updated, and before it goes.
    void addAdditionCallback(DtQxFlowerCallbackFunction callback, void* user);
    void removeAdditionCallback(DtQxFlowerCallbackFunction callback, void* user);
    void addUpdateCallback(DtQxFlowerCallbackFunction callback, void* user);
    void removeUpdateCallback(DtQxFlowerCallbackFunction callback, void* user);
    void addRemovalCallback(DtQxFlowerCallbackFunction callback, void* user);
    void removeRemovalCallback(DtQxFlowerCallbackFunction callback, void* user);
 
protected:
    std::unique_ptr<DtHlaReflectedObject> makeObject(DtExerciseObjectId id, const std::string& name) const override;
};

} // namespace garden

#endif
