#ifndef DT_DLL_CASE_DtReflectedDog_H
#define DT_DLL_CASE_DtReflectedDog_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/hlaReflectedObject.h>
 
#include "dogStateRepository.h"
#include "dllExport.h"
 
#include <string>
 
class DtReflectedDog;
typedef void (*DtDogCallbackFunction)(DtReflectedDog* object, void* user);
 
// A Dog that someone else publishes. DtReflectedDogList makes it and keeps it up to date.
class DT_DLL_CASE DtReflectedDog : public DtHlaReflectedObject
{
public:
    DtReflectedDog(DtExerciseObjectId id, const std::string& name);
 
    // The object's state, under a long and a short name.
    DtDogStateRepository* dogStateRep() const;
    DtDogStateRepository* dsr() const;
};

#endif
