// Generated from case; the next generation writes it anew.
 
#include "beaconEncoderHLA.h"
 
#include <qx/valueCoding.h>
 
DtBeaconEncoder::DtBeaconEncoder()
{
    addCoder("Lamp", &DtBeaconEncoder::encodeLamp);
    addCoder("Lamps", &DtBeaconEncoder::encodeLamps);
    addCoder("Sector", &DtBeaconEncoder::encodeSector);
    addCoder("CallSign", &DtBeaconEncoder::encodeCallSign);
    addCoder("Temperature", &DtBeaconEncoder::encodeTemperature);
    addCoder("Tilt", &DtBeaconEncoder::encodeTilt);
    addCoder("Tilts", &DtBeaconEncoder::encodeTilts);
    addCoder("Register", &DtBeaconEncoder::encodeTheRegister);
    addCoder("Mark", &DtBeaconEncoder::encodeMark);
    addCoder("Image", &DtBeaconEncoder::encodeImage);
    addCoder("Tested", &DtBeaconEncoder::encodeTested);
    addCoder("Manned", &DtBeaconEncoder::encodeManned);
    addCoder("Neighbours", &DtBeaconEncoder::encodeNeighbours);
    addCoder("Sights", &DtBeaconEncoder::encodeSights);
    addCoder("Zone", &DtBeaconEncoder::encodeZone);
    addCoder("Current", &DtBeaconEncoder::encodeCurrent);
    addCoder("Watch", &DtBeaconEncoder::encodeWatch);
    addCoder("Calls", &DtBeaconEncoder::encodeCalls);
    addCoder("Fix", &DtBeaconEncoder::encodeFix);
    addCoder("Test", &DtBeaconEncoder::encodeTest);
    addCoder("Pass", &DtBeaconEncoder::encodePass);
    addCoder("Condition", &DtBeaconEncoder::encodeCondition);
    addCoder("Survey", &DtBeaconEncoder::encodeSurvey);
    addCoder("Gear", &DtBeaconEncoder::encodeGear);
    addCoder("Rule", &DtBeaconEncoder::encodeRule);
    addCoder("Paper", &DtBeaconEncoder::encodePaper);
    addCoder("Times", &DtBeaconEncoder::encodeTimes);
    addCoder("Chambers", &DtBeaconEncoder::encodeChambers);
    addCoder("Remark", &DtBeaconEncoder::encodeRemark);
    addCoder("Draughts", &DtBeaconEncoder::encodeDraughts);
    addCoder("Ring", &DtBeaconEncoder::encodeRing);
    addCoder("Lines", &DtBeaconEncoder::encodeLines);
    addCoder("Deep", &DtBeaconEncoder::encodeDeep);
    addCoder("Slack", &DtBeaconEncoder::encodeSlack);
    addCoder("Find", &DtBeaconEncoder::encodeFind);
    addCoder("Spare", &DtBeaconEncoder::encodeSpare);
    addCoder("Steps", &DtBeaconEncoder::encodeSteps);
    addCoder("Rank", &DtBeaconEncoder::encodeRank);
    addCoder("Floor", &DtBeaconEncoder::encodeFloor);
    addCoder("Sign", &DtBeaconEncoder::encodeSign);
    addCoder("Footing", &DtBeaconEncoder::encodeFooting);
    addCoder("Swing", &DtBeaconEncoder::encodeSwing);
    addCoder("Doors", &DtBeaconEncoder::encodeDoors);
}

bool DtBeaconEncoder::encodeLamp(const DtBeaconStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("lampState", "HarbourInteger8", R"qx(HLAvariableArray)qx",
        -1, 1, 0);
    return DtWriteValue(writer, state.lamp(), form);
}

bool DtBeaconEncoder::encodeLamps(const DtBeaconStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("LampMatrix", "HarbourInteger8", R"qx(HLAfixedArray)qx",
        6, 1, 0);
    return DtWriteValue(writer, state.lamps(), form);
}

bool DtBeaconEncoder::encodeSector(const DtBeaconStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("Bearing", "HarbourSwappedFloat", R"qx(HLAvariableArray)qx",
        -1, 4, 1);
    return DtWriteValue(writer, state.sector(), form);
}

bool DtBeaconEncoder::encodeCallSign(const DtBeaconStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("RouteCode", "HLAunicodeChar", R"qx(HLAnullTerminatedArray)qx",
        -1, 2, 0);
    return DtWriteValue(writer, state.callSign(), form);
}

bool DtBeaconEncoder::encodeTemperature(const DtBeaconStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("Celsius", "HarbourInteger8", R"qx(HLAvariableArray)qx",
        -1, 1, 0);
    return DtWriteValue(writer, state.temperature(), form);
}

bool DtBeaconEncoder::encodeTilt(const DtBeaconStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("Trim24", "HarbourInteger24", R"qx(HLAvariableArray)qx",
        -1, 3, 0);
    return DtWriteValue(writer, state.tilt(), form);
}

bool DtBeaconEncoder::encodeTilts(const DtBeaconStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("TiltTable", "HarbourInteger24", R"qx(HLAfixedArray)qx",
        3, 3, 0);
    return DtWriteValue(writer, state.tilts(), form);
}

bool DtBeaconEncoder::encodeTheRegister(const DtBeaconStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("RegisterNumber", "HarbourUnsigned64LE", R"qx(HLAvariableArray)qx",
        -1, 8, 1);
    return DtWriteValue(writer, state.theRegister(), form);
}

bool DtBeaconEncoder::encodeMark(const DtBeaconStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("Initial", "HLAunicodeChar", R"qx(HLAvariableArray)qx",
        -1, 2, 0);
    return DtWriteValue(writer, state.mark(), form);
}

bool DtBeaconEncoder::encodeImage(const DtBeaconStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("HLAopaqueData", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, state.image(), form);
}

bool DtBeaconEncoder::encodeTested(const DtBeaconStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("RPRboolean", "HLAoctet", R"qx(HLAvariableArray)qx",
        -1, 1, 0);
    return DtWriteValue(writer, state.tested(), form);
}

bool DtBeaconEncoder::encodeManned(const DtBeaconStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("OMT13boolean", "HLAinteger16BE", R"qx(HLAvariableArray)qx",
        -1, 2, 0);
    return DtWriteValue(writer, state.manned(), form);
}

bool DtBeaconEncoder::encodeNeighbours(const DtBeaconStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("NameList", "HLAunicodeString", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, state.neighbours(), form);
}

bool DtBeaconEncoder::encodeSights(const DtBeaconStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("BearingList", "HLAfloat64BE", R"qx(HLAvariableArray)qx",
        -1, 8, 0);
    return DtWriteValue(writer, state.sights(), form);
}

bool DtBeaconEncoder::encodeZone(const DtBeaconStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("Zone64", "HarbourUnsigned64LE", R"qx(HLAvariableArray)qx",
        -1, 8, 1);
    return DtWriteValue(writer, state.zone(), form);
}

bool DtBeaconEncoder::encodeCurrent(const DtBeaconStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("Current16", "HLAinteger16LE", R"qx(HLAvariableArray)qx",
        -1, 2, 1);
    return DtWriteValue(writer, state.current(), form);
}

bool DtBeaconEncoder::encodeWatch(const DtBeaconStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("RotationList", "Rotation", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, state.watch(), form);
}

bool DtBeaconEncoder::encodeCalls(const DtBeaconStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("SignalLog", "SignalEntry", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, state.calls(), form);
}

bool DtBeaconEncoder::encodeFix(const DtBeaconStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("PositionFix", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, state.fix(), form);
}

bool DtBeaconEncoder::encodeTest(const DtBeaconStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("TestResult", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, state.test(), form);
}

bool DtBeaconEncoder::encodePass(const DtBeaconStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("Permit", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, state.pass(), form);
}

bool DtBeaconEncoder::encodeCondition(const DtBeaconStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("LampReport", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, state.condition(), form);
}

bool DtBeaconEncoder::encodeSurvey(const DtBeaconStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("Inspection", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, state.survey(), form);
}

bool DtBeaconEncoder::encodeGear(const DtBeaconStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("Equipment", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, state.gear(), form);
}

bool DtBeaconEncoder::encodeRule(const DtBeaconStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("ZoneRule", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, state.rule(), form);
}

bool DtBeaconEncoder::encodePaper(const DtBeaconStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("ReportFrame", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, state.paper(), form);
}

bool DtBeaconEncoder::encodeTimes(const DtBeaconStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("GateTimes", "ClockTime", R"qx(HLAfixedArray)qx",
        4, 0, 0);
    return DtWriteValue(writer, state.times(), form);
}

bool DtBeaconEncoder::encodeChambers(const DtBeaconStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("LockGrid", "HarbourUnsigned32", R"qx(HLAfixedArray)qx",
        8, 4, 0);
    return DtWriteValue(writer, state.chambers(), form);
}

bool DtBeaconEncoder::encodeRemark(const DtBeaconStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("LongNote", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, state.remark(), form);
}

bool DtBeaconEncoder::encodeDraughts(const DtBeaconStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("DraughtTable", "HLAfloat32LE", R"qx(HLAfixedArray)qx",
        3, 4, 1);
    return DtWriteValue(writer, state.draughts(), form);
}

bool DtBeaconEncoder::encodeRing(const DtBeaconStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("TideRing", "HarbourUnsigned16LE", R"qx(HLAvariableArray)qx",
        -1, 2, 1);
    return DtWriteValue(writer, state.ring(), form);
}

bool DtBeaconEncoder::encodeLines(const DtBeaconStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("LineList", "HLAinteger32BE", R"qx(HLAvariableArray)qx",
        4, 4, 0);
    return DtWriteValue(writer, state.lines(), form);
}

bool DtBeaconEncoder::encodeDeep(const DtBeaconStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("Deep32", "HLAinteger32LE", R"qx(HLAvariableArray)qx",
        -1, 4, 1);
    return DtWriteValue(writer, state.deep(), form);
}

bool DtBeaconEncoder::encodeSlack(const DtBeaconStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("Slack24", "HarbourInteger24LE", R"qx(HLAvariableArray)qx",
        -1, 3, 1);
    return DtWriteValue(writer, state.slack(), form);
}

bool DtBeaconEncoder::encodeFind(const DtBeaconStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("HullPart32", "HarbourUnsigned32", R"qx(HLAvariableArray)qx",
        -1, 4, 0);
    return DtWriteValue(writer, state.find(), form);
}

bool DtBeaconEncoder::encodeSpare(const DtBeaconStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("Empty__Record", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, state.spare(), form);
}

bool DtBeaconEncoder::encodeSteps(const DtBeaconStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("HLAinteger32LE", "", R"qx(HLAvariableArray)qx",
        -1, 4, 1);
    return DtWriteValue(writer, state.steps(), form);
}

bool DtBeaconEncoder::encodeRank(const DtBeaconStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("HLAinteger64LE", "", R"qx(HLAvariableArray)qx",
        -1, 8, 1);
    return DtWriteValue(writer, state.rank(), form);
}

bool DtBeaconEncoder::encodeFloor(const DtBeaconStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("HLAinteger16LE", "", R"qx(HLAvariableArray)qx",
        -1, 2, 1);
    return DtWriteValue(writer, state.floor(), form);
}

bool DtBeaconEncoder::encodeSign(const DtBeaconStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("Letter", "HLAASCIIchar", R"qx(HLAvariableArray)qx",
        -1, 1, 0);
    return DtWriteValue(writer, state.sign(), form);
}

bool DtBeaconEncoder::encodeFooting(const DtBeaconStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("Depth", "HLAinteger16BE", R"qx(HLAvariableArray)qx",
        -1, 2, 0);
    return DtWriteValue(writer, state.footing(), form);
}

bool DtBeaconEncoder::encodeSwing(const DtBeaconStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("HarbourInteger24LE", "", R"qx(HLAvariableArray)qx",
        -1, 3, 1);
    return DtWriteValue(writer, state.swing(), form);
}

bool DtBeaconEncoder::encodeDoors(const DtBeaconStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("DoorStates", "HLAboolean", R"qx(HLAfixedArray)qx",
        3, 0, 0);
    return DtWriteValue(writer, state.doors(), form);
}

