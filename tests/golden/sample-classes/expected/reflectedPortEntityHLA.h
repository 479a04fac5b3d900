#ifndef DT_DLL_CASE_DtReflectedPortEntity_H
#define DT_DLL_CASE_DtReflectedPortEntity_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/hlaReflectedObject.h>
 
#include "portEntityStateRepository.h"
#include "dllExport.h"
 
#include <string>
 
class DtReflectedPortEntity;
typedef void (*DtPortEntityCallbackFunction)(DtReflectedPortEntity* object, void* user);
 
// A PortEntity that someone else publishes. DtReflectedPortEntityList makes it and keeps it up to date.
class DT_DLL_CASE DtReflectedPortEntity : public DtHlaReflectedObject
{
public:
    DtReflectedPortEntity(DtExerciseObjectId id, const std::string& name);
 
    // The object's state, under a long and a short name.
    DtPortEntityStateRepository* portEntityStateRep() const;
    DtPortEntityStateRepository* psr() const;
};

#endif
