#ifndef DT_DLL_CASE_DtReflectedQxFlower_H
#define DT_DLL_CASE_DtReflectedQxFlower_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/hlaReflectedObject.h>
 
#include "beds/flowerStateRepository.h"
#include "dllExport.h"
 
#include <string>
 
namespace garden
{
 
class DtReflectedQxFlower;
typedef void (*DtQxFlowerCallbackFunction)(DtReflectedQxFlower* object, void* user);
 
// A Flower that someone else publishes. DtReflectedQxFlowerList makes it and keeps it up to date.
class DT_DLL_CASE DtReflectedQxFlower : public DtHlaReflectedObject
{
public:
    DtReflectedQxFlower(DtExerciseObjectId id, const std::string& name);
 
    // The object's state, under a long and a short name.
    DtQxFlowerStateRepository* flowerStateRep() const;
    DtQxFlowerStateRepository* fsr() const;
};

} // namespace garden

#endif
