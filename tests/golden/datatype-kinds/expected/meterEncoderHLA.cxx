// Generated from case; the next generation writes it anew.
 
#include "meterEncoderHLA.h"
 
#include <qx/valueCoding.h>
 
DtMeterEncoder::DtMeterEncoder()
{
    addCoder("Raw", &DtMeterEncoder::encodeRaw);
    addCoder("Running", &DtMeterEncoder::encodeRunning);
    addCoder("State", &DtMeterEncoder::encodeState);
    addCoder("Week", &DtMeterEncoder::encodeWeek);
    addCoder("Remarks", &DtMeterEncoder::encodeRemarks);
    addCoder("Past", &DtMeterEncoder::encodePast);
    addCoder("Last", &DtMeterEncoder::encodeLast);
    addCoder("Inside", &DtMeterEncoder::encodeInside);
}

bool DtMeterEncoder::encodeRaw(const DtMeterStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("Unsigned16LE", "", R"qx(HLAvariableArray)qx",
        -1, 2, 1);
    return DtWriteValue(writer, state.raw(), form);
}

bool DtMeterEncoder::encodeRunning(const DtMeterStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("Hours", "Unsigned16LE", R"qx(HLAvariableArray)qx",
        -1, 2, 1);
    return DtWriteValue(writer, state.running(), form);
}

bool DtMeterEncoder::encodeState(const DtMeterStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("State8", "HLAoctet", R"qx(HLAvariableArray)qx",
        -1, 1, 0);
    return DtWriteValue(writer, state.state(), form);
}

bool DtMeterEncoder::encodeWeek(const DtMeterStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("Row", "Unsigned16LE", R"qx(HLAfixedArray)qx",
        3, 2, 1);
    return DtWriteValue(writer, state.week(), form);
}

bool DtMeterEncoder::encodeRemarks(const DtMeterStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("Notes", "HLAASCIIchar", R"qx(HLAvariableArray)qx",
        -1, 1, 0);
    return DtWriteValue(writer, state.remarks(), form);
}

bool DtMeterEncoder::encodePast(const DtMeterStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("History", "Reading", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, state.past(), form);
}

bool DtMeterEncoder::encodeLast(const DtMeterStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("Reading", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, state.last(), form);
}

bool DtMeterEncoder::encodeInside(const DtMeterStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("Content", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, state.inside(), form);
}

