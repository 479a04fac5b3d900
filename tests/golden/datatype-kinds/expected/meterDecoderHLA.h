#ifndef DT_DLL_CASE_DtMeterDecoder_H
#define DT_DLL_CASE_DtMeterDecoder_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/hlaStateDecoder.h>
#include "meterStateRepository.h"
#include "dllExport.h"
 
// Sets the attributes of HLAobjectRoot.Meter and of its superclasses from named buffers.
class DT_DLL_CASE DtMeterDecoder
    : public DtHlaStateDecoder
{
public:
    DtMeterDecoder();
 
protected:
    // One for each attribute; false if the buffer holds no value of it.
    static bool decodeRaw(DtMeterStateRepository& state, DtWireReader& reader);
    static bool decodeRunning(DtMeterStateRepository& state, DtWireReader& reader);
    static bool decodeState(DtMeterStateRepository& state, DtWireReader& reader);
    static bool decodeWeek(DtMeterStateRepository& state, DtWireReader& reader);
    static bool decodeRemarks(DtMeterStateRepository& state, DtWireReader& reader);
    static bool decodePast(DtMeterStateRepository& state, DtWireReader& reader);
    static bool decodeLast(DtMeterStateRepository& state, DtWireReader& reader);
    static bool decodeInside(DtMeterStateRepository& state, DtWireReader& reader);
};

#endif
