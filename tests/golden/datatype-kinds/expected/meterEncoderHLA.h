#ifndef DT_DLL_CASE_DtMeterEncoder_H
#define DT_DLL_CASE_DtMeterEncoder_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/hlaStateEncoder.h>
#include "meterStateRepository.h"
#include "dllExport.h"
 
// Puts the attributes of HLAobjectRoot.Meter into named buffers, behind those of its superclasses.
class DT_DLL_CASE DtMeterEncoder
    : public DtHlaStateEncoder
{
public:
    DtMeterEncoder();
 
protected:
    // One for each attribute; false if the value has no wire form.
    static bool encodeRaw(const DtMeterStateRepository& state, DtWireWriter& writer);
    static bool encodeRunning(const DtMeterStateRepository& state, DtWireWriter& writer);
    static bool encodeState(const DtMeterStateRepository& state, DtWireWriter& writer);
    static bool encodeWeek(const DtMeterStateRepository& state, DtWireWriter& writer);
    static bool encodeRemarks(const DtMeterStateRepository& state, DtWireWriter& writer);
    static bool encodePast(const DtMeterStateRepository& state, DtWireWriter& writer);
    static bool encodeLast(const DtMeterStateRepository& state, DtWireWriter& writer);
    static bool encodeInside(const DtMeterStateRepository& state, DtWireWriter& writer);
};

#endif
