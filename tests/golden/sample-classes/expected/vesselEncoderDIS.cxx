// Generated from case; the next generation writes it anew.
 
#include "vesselEncoderDIS.h"
 
#include <qx/valueCoding.h>
 
DtVesselEncoder::DtVesselEncoder()
{
    addCoder("Speed", &DtVesselEncoder::encodeSpeed);
    addCoder("Heading__True", &DtVesselEncoder::encodeHeading__True);
    addCoder("State", &DtVesselEncoder::encodeState);
    addCoder("_class", &DtVesselEncoder::encodeTheClass);
    addCoder("int", &DtVesselEncoder::encodeTheInt);
    addCoder("Template", &DtVesselEncoder::encodeTheTemplate);
    addCoder("Crew", &DtVesselEncoder::encodeCrew);
}
bool DtVesselEncoder::encodeSpeed(const DtVesselStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("Knots", "HLAfloat32BE", R"qx(HLAvariableArray)qx",
        -1, 4, 0);
    return DtWriteValue(writer, state.speed(), form);
}
bool DtVesselEncoder::encodeHeading__True(const DtVesselStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("Degrees", "HLAfloat64BE", R"qx(HLAvariableArray)qx",
        -1, 8, 0);
    return DtWriteValue(writer, state.heading__True(), form);
}
bool DtVesselEncoder::encodeState(const DtVesselStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("VesselState8", "HLAoctet", R"qx(HLAvariableArray)qx",
        -1, 1, 0);
    return DtWriteValue(writer, state.state(), form);
}
bool DtVesselEncoder::encodeTheClass(const DtVesselStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("HLAunicodeString", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, state.theClass(), form);
}
bool DtVesselEncoder::encodeTheInt(const DtVesselStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("HLAinteger32BE", "", R"qx(HLAvariableArray)qx",
        -1, 4, 0);
    return DtWriteValue(writer, state.theInt(), form);
}
bool DtVesselEncoder::encodeTheTemplate(const DtVesselStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("VesselState16", "HLAinteger16BE", R"qx(HLAvariableArray)qx",
        -1, 2, 0);
    return DtWriteValue(writer, state.theTemplate(), form);
}
bool DtVesselEncoder::encodeCrew(const DtVesselStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("PersonList", "Person", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, state.crew(), form);
}

