// Generated from case; the next generation writes it anew.
 
#include "weatherDecoderHLA.h"
 
#include <qx/valueCoding.h>
 
DtWeatherDecoder::DtWeatherDecoder()
{
    addCoder("Wind", &DtWeatherDecoder::decodeWind);
    addCoder("Report", &DtWeatherDecoder::decodeReport);
    addCoder("Samples", &DtWeatherDecoder::decodeSamples);
    addCoder("Codes", &DtWeatherDecoder::decodeCodes);
    addCoder("Tide", &DtWeatherDecoder::decodeTide);
    addCoder("Trace", &DtWeatherDecoder::decodeTrace);
}

bool DtWeatherDecoder::decodeWind(DtWeatherStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("WindRecord", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    auto value = state.wind();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setWind(value);
    return true;
}

bool DtWeatherDecoder::decodeReport(DtWeatherStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("ReportText", "HLAASCIIchar", R"qx(HLAnullTerminatedArray)qx",
        -1, 1, 0);
    auto value = state.report();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setReport(value);
    return true;
}

bool DtWeatherDecoder::decodeSamples(DtWeatherStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("SampleRun", "HLAinteger16BE", R"qx(HLAlengthlessVarArray)qx",
        -1, 2, 0);
    auto value = state.samples();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setSamples(value);
    return true;
}

bool DtWeatherDecoder::decodeCodes(DtWeatherStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("CodeRange", "HarbourUnsigned32", R"qx(HLAvariableArray)qx",
        -1, 4, 0);
    auto value = state.codes();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setCodes(value);
    return true;
}

bool DtWeatherDecoder::decodeTide(DtWeatherStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("Tide16LE", "HarbourUnsigned16LE", R"qx(HLAvariableArray)qx",
        -1, 2, 1);
    auto value = state.tide();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setTide(value);
    return true;
}

bool DtWeatherDecoder::decodeTrace(DtWeatherStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("PaddedTrace", "HarbourUnsigned16LE", R"qx(HLApaddingTo64Array)qx",
        -1, 2, 1);
    auto value = state.trace();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setTrace(value);
    return true;
}

