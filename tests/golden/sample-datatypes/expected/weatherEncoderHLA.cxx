// Generated from case; the next generation writes it anew.
 
#include "weatherEncoderHLA.h"
 
#include <qx/valueCoding.h>
 
DtWeatherEncoder::DtWeatherEncoder()
{
    addCoder("Wind", &DtWeatherEncoder::encodeWind);
    addCoder("Report", &DtWeatherEncoder::encodeReport);
    addCoder("Samples", &DtWeatherEncoder::encodeSamples);
    addCoder("Codes", &DtWeatherEncoder::encodeCodes);
    addCoder("Tide", &DtWeatherEncoder::encodeTide);
    addCoder("Trace", &DtWeatherEncoder::encodeTrace);
}

bool DtWeatherEncoder::encodeWind(const DtWeatherStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("WindRecord", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, state.wind(), form);
}

bool DtWeatherEncoder::encodeReport(const DtWeatherStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("ReportText", "HLAASCIIchar", R"qx(HLAnullTerminatedArray)qx",
        -1, 1, 0);
    return DtWriteValue(writer, state.report(), form);
}

bool DtWeatherEncoder::encodeSamples(const DtWeatherStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("SampleRun", "HLAinteger16BE", R"qx(HLAlengthlessVarArray)qx",
        -1, 2, 0);
    return DtWriteValue(writer, state.samples(), form);
}

bool DtWeatherEncoder::encodeCodes(const DtWeatherStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("CodeRange", "HarbourUnsigned32", R"qx(HLAvariableArray)qx",
        -1, 4, 0);
    return DtWriteValue(writer, state.codes(), form);
}

bool DtWeatherEncoder::encodeTide(const DtWeatherStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("Tide16LE", "HarbourUnsigned16LE", R"qx(HLAvariableArray)qx",
        -1, 2, 1);
    return DtWriteValue(writer, state.tide(), form);
}

bool DtWeatherEncoder::encodeTrace(const DtWeatherStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("PaddedTrace", "HarbourUnsigned16LE", R"qx(HLApaddingTo64Array)qx",
        -1, 2, 1);
    return DtWriteValue(writer, state.trace(), form);
}

