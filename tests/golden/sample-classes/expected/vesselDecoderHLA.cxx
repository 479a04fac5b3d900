// Generated from case; the next generation writes it anew.
 
#include "vesselDecoderHLA.h"
 
#include <qx/valueCoding.h>
 
DtVesselDecoder::DtVesselDecoder()
{
    addCoder("Speed", &DtVesselDecoder::decodeSpeed);
    addCoder("Heading__True", &DtVesselDecoder::decodeHeading__True);
    addCoder("State", &DtVesselDecoder::decodeState);
    addCoder("_class", &DtVesselDecoder::decodeTheClass);
    addCoder("int", &DtVesselDecoder::decodeTheInt);
    addCoder("Template", &DtVesselDecoder::decodeTheTemplate);
    addCoder("Crew", &DtVesselDecoder::decodeCrew);
}

bool DtVesselDecoder::decodeSpeed(DtVesselStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("Knots", "HLAfloat32BE", R"qx(HLAvariableArray)qx",
        -1, 4, 0);
    auto value = state.speed();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setSpeed(value);
    return true;
}

bool DtVesselDecoder::decodeHeading__True(DtVesselStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("Degrees", "HLAfloat64BE", R"qx(HLAvariableArray)qx",
        -1, 8, 0);
    auto value = state.heading__True();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setHeading__True(value);
    return true;
}

bool DtVesselDecoder::decodeState(DtVesselStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("VesselState8", "HLAoctet", R"qx(HLAvariableArray)qx",
        -1, 1, 0);
    auto value = state.state();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setState(value);
    return true;
}

bool DtVesselDecoder::decodeTheClass(DtVesselStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("HLAunicodeString", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    auto value = state.theClass();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setTheClass(value);
    return true;
}

bool DtVesselDecoder::decodeTheInt(DtVesselStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("HLAinteger32BE", "", R"qx(HLAvariableArray)qx",
        -1, 4, 0);
    auto value = state.theInt();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setTheInt(value);
    return true;
}

bool DtVesselDecoder::decodeTheTemplate(DtVesselStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("VesselState16", "HLAinteger16BE", R"qx(HLAvariableArray)qx",
        -1, 2, 0);
    auto value = state.theTemplate();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setTheTemplate(value);
    return true;
}

bool DtVesselDecoder::decodeCrew(DtVesselStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("PersonList", "Person", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    auto value = state.crew();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setCrew(value);
    return true;
}

