#ifndef DT_DLL_CASE_DtWeatherEncoder_H
#define DT_DLL_CASE_DtWeatherEncoder_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/hlaStateEncoder.h>
#include "weatherStateRepository.h"
#include "dllExport.h"
 
// Puts the attributes of HLAobjectRoot.Weather into named buffers, behind those of its superclasses.
class DT_DLL_CASE DtWeatherEncoder
    : public DtHlaStateEncoder
{
public:
    DtWeatherEncoder();
 
protected:
    // One for each attribute; false if the value has no wire form.
    static bool encodeWind(const DtWeatherStateRepository& state, DtWireWriter& writer);
    static bool encodeReport(const DtWeatherStateRepository& state, DtWireWriter& writer);
    static bool encodeSamples(const DtWeatherStateRepository& state, DtWireWriter& writer);
    static bool encodeCodes(const DtWeatherStateRepository& state, DtWireWriter& writer);
    static bool encodeTide(const DtWeatherStateRepository& state, DtWireWriter& writer);
    static bool encodeTrace(const DtWeatherStateRepository& state, DtWireWriter& writer);
};

#endif
