#ifndef DT_DLL_CASE_DtReflectedBerth_H
#define DT_DLL_CASE_DtReflectedBerth_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/hlaReflectedObject.h>
 
#include "berthStateRepository.h"
#include "dllExport.h"
 
#include <string>
 
class DtReflectedBerth;
typedef void (*DtBerthCallbackFunction)(DtReflectedBerth* object, void* user);
 
// A Berth that someone else publishes. DtReflectedBerthList makes it and keeps it up to date.
class DT_DLL_CASE DtReflectedBerth : public DtHlaReflectedObject
{
public:
    DtReflectedBerth(DtExerciseObjectId id, const std::string& name);
 
    // The object's state, under a long and a short name.
    DtBerthStateRepository* berthStateRep() const;
    DtBerthStateRepository* bsr() const;
};

#endif
