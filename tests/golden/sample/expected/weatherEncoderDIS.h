#ifndef DT_DLL_CASE_DtWeatherEncoder_DIS_H
#define DT_DLL_CASE_DtWeatherEncoder_DIS_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/stateEncoder.h>
#include "weatherStateRepository.h"
#include "dllExport.h"
 
// Puts the attributes of HLAobjectRoot.Weather into the body of a protocol data unit, behind those of its superclasses.
class DT_DLL_CASE DtWeatherEncoder : public DtStateEncoder
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
