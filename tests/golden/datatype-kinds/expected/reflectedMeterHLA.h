#ifndef DT_DLL_CASE_DtReflectedMeter_H
#define DT_DLL_CASE_DtReflectedMeter_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/hlaReflectedObject.h>
 
#include "meterStateRepository.h"
#include "dllExport.h"
 
#include <string>
 
class DtReflectedMeter;
typedef void (*DtMeterCallbackFunction)(DtReflectedMeter* object, void* user);
 
// A Meter that someone else publishes. DtReflectedMeterList makes it and keeps it up to date.
class DT_DLL_CASE DtReflectedMeter : public DtHlaReflectedObject
{
public:
    DtReflectedMeter(DtExerciseObjectId id, const std::string& name);
 
    // The object's state, under a long and a short name.
    DtMeterStateRepository* meterStateRep() const;
    DtMeterStateRepository* msr() const;
};

#endif
