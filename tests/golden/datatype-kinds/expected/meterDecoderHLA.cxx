// Generated from case; the next generation writes it anew.
 
#include "meterDecoderHLA.h"
 
#include <qx/valueCoding.h>
 
DtMeterDecoder::DtMeterDecoder()
{
    addCoder("Raw", &DtMeterDecoder::decodeRaw);
    addCoder("Running", &DtMeterDecoder::decodeRunning);
    addCoder("State", &DtMeterDecoder::decodeState);
    addCoder("Week", &DtMeterDecoder::decodeWeek);
    addCoder("Remarks", &DtMeterDecoder::decodeRemarks);
    addCoder("Past", &DtMeterDecoder::decodePast);
    addCoder("Last", &DtMeterDecoder::decodeLast);
    addCoder("Inside", &DtMeterDecoder::decodeInside);
}

bool DtMeterDecoder::decodeRaw(DtMeterStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("Unsigned16LE", "", R"qx(HLAvariableArray)qx",
        -1, 2, 1);
    auto value = state.raw();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setRaw(value);
    return true;
}

bool DtMeterDecoder::decodeRunning(DtMeterStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("Hours", "Unsigned16LE", R"qx(HLAvariableArray)qx",
        -1, 2, 1);
    auto value = state.running();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setRunning(value);
    return true;
}

bool DtMeterDecoder::decodeState(DtMeterStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("State8", "HLAoctet", R"qx(HLAvariableArray)qx",
        -1, 1, 0);
    auto value = state.state();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setState(value);
    return true;
}

bool DtMeterDecoder::decodeWeek(DtMeterStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("Row", "Unsigned16LE", R"qx(HLAfixedArray)qx",
        3, 2, 1);
    auto value = state.week();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setWeek(value);
    return true;
}

bool DtMeterDecoder::decodeRemarks(DtMeterStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("Notes", "HLAASCIIchar", R"qx(HLAvariableArray)qx",
        -1, 1, 0);
    auto value = state.remarks();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setRemarks(value);
    return true;
}

bool DtMeterDecoder::decodePast(DtMeterStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("History", "Reading", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    auto value = state.past();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setPast(value);
    return true;
}

bool DtMeterDecoder::decodeLast(DtMeterStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("Reading", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    auto value = state.last();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setLast(value);
    return true;
}

bool DtMeterDecoder::decodeInside(DtMeterStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("Content", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    auto value = state.inside();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setInside(value);
    return true;
}

