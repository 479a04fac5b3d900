#ifndef DT_DLL_CASE_DtReflectedBerth_DIS_H
#define DT_DLL_CASE_DtReflectedBerth_DIS_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/disReflectedObject.h>
 
#include "berthStateRepository.h"
#include "dllExport.h"
 
#include <string>
 
class DtReflectedBerth;
typedef void (*DtBerthCallbackFunction)(DtReflectedBerth* object, void* user);
 
// A HLAobjectRoot.PortEntity.Berth that someone else publishes. DtReflectedBerthList makes it and keeps it up to date.
class DT_DLL_CASE DtReflectedBerth : public DtDisReflectedObject
{
public:
    DtReflectedBerth(DtExerciseObjectId id, const std::string& name);
 
    // The object's state, under a long and a short name.
    DtBerthStateRepository* berthStateRep() const;
    DtBerthStateRepository* bsr() const;
};

#endif
