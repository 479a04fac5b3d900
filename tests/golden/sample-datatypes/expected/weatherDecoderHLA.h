#ifndef DT_DLL_CASE_DtWeatherDecoder_H
#define DT_DLL_CASE_DtWeatherDecoder_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/hlaStateDecoder.h>
#include "weatherStateRepository.h"
#include "dllExport.h"
 
// Sets the attributes of HLAobjectRoot.Weather and of its superclasses from named buffers.
class DT_DLL_CASE DtWeatherDecoder
    : public DtHlaStateDecoder
{
public:
    DtWeatherDecoder();
 
protected:
    // One for each attribute; false if the buffer holds no value of it.
    static bool decodeWind(DtWeatherStateRepository& state, DtWireReader& reader);
    static bool decodeReport(DtWeatherStateRepository& state, DtWireReader& reader);
    static bool decodeSamples(DtWeatherStateRepository& state, DtWireReader& reader);
    static bool decodeCodes(DtWeatherStateRepository& state, DtWireReader& reader);
    static bool decodeTide(DtWeatherStateRepository& state, DtWireReader& reader);
    static bool decodeTrace(DtWeatherStateRepository& state, DtWireReader& reader);
};

#endif
