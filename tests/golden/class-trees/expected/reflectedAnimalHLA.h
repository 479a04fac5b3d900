#ifndef DT_DLL_CASE_DtReflectedAnimal_H
#define DT_DLL_CASE_DtReflectedAnimal_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/hlaReflectedObject.h>
 
#include "animalStateRepository.h"
#include "dllExport.h"
 
#include <string>
 
class DtReflectedAnimal;
typedef void (*DtAnimalCallbackFunction)(DtReflectedAnimal* object, void* user);
 
// A Animal that someone else publishes. DtReflectedAnimalList makes it and keeps it up to date.
class DT_DLL_CASE DtReflectedAnimal : public DtHlaReflectedObject
{
public:
    DtReflectedAnimal(DtExerciseObjectId id, const std::string& name);
 
    // The object's state, under a long and a short name.
    DtAnimalStateRepository* animalStateRep() const;
    DtAnimalStateRepository* asr() const;
};

#endif
