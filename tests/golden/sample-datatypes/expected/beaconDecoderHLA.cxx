// Generated from case; the next generation writes it anew.
 
#include "beaconDecoderHLA.h"
 
#include <qx/valueCoding.h>
 
DtBeaconDecoder::DtBeaconDecoder()
{
    addCoder("Lamp", &DtBeaconDecoder::decodeLamp);
    addCoder("Lamps", &DtBeaconDecoder::decodeLamps);
    addCoder("Sector", &DtBeaconDecoder::decodeSector);
    addCoder("CallSign", &DtBeaconDecoder::decodeCallSign);
    addCoder("Temperature", &DtBeaconDecoder::decodeTemperature);
    addCoder("Tilt", &DtBeaconDecoder::decodeTilt);
    addCoder("Tilts", &DtBeaconDecoder::decodeTilts);
    addCoder("Register", &DtBeaconDecoder::decodeTheRegister);
    addCoder("Mark", &DtBeaconDecoder::decodeMark);
    addCoder("Image", &DtBeaconDecoder::decodeImage);
    addCoder("Tested", &DtBeaconDecoder::decodeTested);
    addCoder("Manned", &DtBeaconDecoder::decodeManned);
    addCoder("Neighbours", &DtBeaconDecoder::decodeNeighbours);
    addCoder("Sights", &DtBeaconDecoder::decodeSights);
    addCoder("Zone", &DtBeaconDecoder::decodeZone);
    addCoder("Current", &DtBeaconDecoder::decodeCurrent);
    addCoder("Watch", &DtBeaconDecoder::decodeWatch);
    addCoder("Calls", &DtBeaconDecoder::decodeCalls);
    addCoder("Fix", &DtBeaconDecoder::decodeFix);
    addCoder("Test", &DtBeaconDecoder::decodeTest);
    addCoder("Pass", &DtBeaconDecoder::decodePass);
    addCoder("Condition", &DtBeaconDecoder::decodeCondition);
    addCoder("Survey", &DtBeaconDecoder::decodeSurvey);
    addCoder("Gear", &DtBeaconDecoder::decodeGear);
    addCoder("Rule", &DtBeaconDecoder::decodeRule);
    addCoder("Paper", &DtBeaconDecoder::decodePaper);
    addCoder("Times", &DtBeaconDecoder::decodeTimes);
    addCoder("Chambers", &DtBeaconDecoder::decodeChambers);
    addCoder("Remark", &DtBeaconDecoder::decodeRemark);
    addCoder("Draughts", &DtBeaconDecoder::decodeDraughts);
    addCoder("Ring", &DtBeaconDecoder::decodeRing);
    addCoder("Lines", &DtBeaconDecoder::decodeLines);
    addCoder("Deep", &DtBeaconDecoder::decodeDeep);
    addCoder("Slack", &DtBeaconDecoder::decodeSlack);
    addCoder("Find", &DtBeaconDecoder::decodeFind);
    addCoder("Spare", &DtBeaconDecoder::decodeSpare);
    addCoder("Steps", &DtBeaconDecoder::decodeSteps);
    addCoder("Rank", &DtBeaconDecoder::decodeRank);
    addCoder("Floor", &DtBeaconDecoder::decodeFloor);
    addCoder("Sign", &DtBeaconDecoder::decodeSign);
    addCoder("Footing", &DtBeaconDecoder::decodeFooting);
    addCoder("Swing", &DtBeaconDecoder::decodeSwing);
    addCoder("Doors", &DtBeaconDecoder::decodeDoors);
}

bool DtBeaconDecoder::decodeLamp(DtBeaconStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("lampState", "HarbourInteger8", R"qx(HLAvariableArray)qx",
        -1, 1, 0);
    auto value = state.lamp();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setLamp(value);
    return true;
}

bool DtBeaconDecoder::decodeLamps(DtBeaconStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("LampMatrix", "HarbourInteger8", R"qx(HLAfixedArray)qx",
        6, 1, 0);
    auto value = state.lamps();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setLamps(value);
    return true;
}

bool DtBeaconDecoder::decodeSector(DtBeaconStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("Bearing", "HarbourSwappedFloat", R"qx(HLAvariableArray)qx",
        -1, 4, 1);
    auto value = state.sector();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setSector(value);
    return true;
}

bool DtBeaconDecoder::decodeCallSign(DtBeaconStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("RouteCode", "HLAunicodeChar", R"qx(HLAnullTerminatedArray)qx",
        -1, 2, 0);
    auto value = state.callSign();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setCallSign(value);
    return true;
}

bool DtBeaconDecoder::decodeTemperature(DtBeaconStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("Celsius", "HarbourInteger8", R"qx(HLAvariableArray)qx",
        -1, 1, 0);
    auto value = state.temperature();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setTemperature(value);
    return true;
}

bool DtBeaconDecoder::decodeTilt(DtBeaconStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("Trim24", "HarbourInteger24", R"qx(HLAvariableArray)qx",
        -1, 3, 0);
    auto value = state.tilt();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setTilt(value);
    return true;
}

bool DtBeaconDecoder::decodeTilts(DtBeaconStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("TiltTable", "HarbourInteger24", R"qx(HLAfixedArray)qx",
        3, 3, 0);
    auto value = state.tilts();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setTilts(value);
    return true;
}

bool DtBeaconDecoder::decodeTheRegister(DtBeaconStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("RegisterNumber", "HarbourUnsigned64LE", R"qx(HLAvariableArray)qx",
        -1, 8, 1);
    auto value = state.theRegister();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setTheRegister(value);
    return true;
}

bool DtBeaconDecoder::decodeMark(DtBeaconStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("Initial", "HLAunicodeChar", R"qx(HLAvariableArray)qx",
        -1, 2, 0);
    auto value = state.mark();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setMark(value);
    return true;
}

bool DtBeaconDecoder::decodeImage(DtBeaconStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("HLAopaqueData", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    auto value = state.image();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setImage(value);
    return true;
}

bool DtBeaconDecoder::decodeTested(DtBeaconStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("RPRboolean", "HLAoctet", R"qx(HLAvariableArray)qx",
        -1, 1, 0);
    auto value = state.tested();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setTested(value);
    return true;
}

bool DtBeaconDecoder::decodeManned(DtBeaconStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("OMT13boolean", "HLAinteger16BE", R"qx(HLAvariableArray)qx",
        -1, 2, 0);
    auto value = state.manned();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setManned(value);
    return true;
}

bool DtBeaconDecoder::decodeNeighbours(DtBeaconStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("NameList", "HLAunicodeString", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    auto value = state.neighbours();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setNeighbours(value);
    return true;
}

bool DtBeaconDecoder::decodeSights(DtBeaconStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("BearingList", "HLAfloat64BE", R"qx(HLAvariableArray)qx",
        -1, 8, 0);
    auto value = state.sights();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setSights(value);
    return true;
}

bool DtBeaconDecoder::decodeZone(DtBeaconStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("Zone64", "HarbourUnsigned64LE", R"qx(HLAvariableArray)qx",
        -1, 8, 1);
    auto value = state.zone();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setZone(value);
    return true;
}

bool DtBeaconDecoder::decodeCurrent(DtBeaconStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("Current16", "HLAinteger16LE", R"qx(HLAvariableArray)qx",
        -1, 2, 1);
    auto value = state.current();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setCurrent(value);
    return true;
}

bool DtBeaconDecoder::decodeWatch(DtBeaconStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("RotationList", "Rotation", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    auto value = state.watch();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setWatch(value);
    return true;
}

bool DtBeaconDecoder::decodeCalls(DtBeaconStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("SignalLog", "SignalEntry", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    auto value = state.calls();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setCalls(value);
    return true;
}

bool DtBeaconDecoder::decodeFix(DtBeaconStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("PositionFix", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    auto value = state.fix();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setFix(value);
    return true;
}

bool DtBeaconDecoder::decodeTest(DtBeaconStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("TestResult", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    auto value = state.test();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setTest(value);
    return true;
}

bool DtBeaconDecoder::decodePass(DtBeaconStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("Permit", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    auto value = state.pass();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setPass(value);
    return true;
}

bool DtBeaconDecoder::decodeCondition(DtBeaconStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("LampReport", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    auto value = state.condition();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setCondition(value);
    return true;
}

bool DtBeaconDecoder::decodeSurvey(DtBeaconStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("Inspection", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    auto value = state.survey();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setSurvey(value);
    return true;
}

bool DtBeaconDecoder::decodeGear(DtBeaconStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("Equipment", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    auto value = state.gear();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setGear(value);
    return true;
}

bool DtBeaconDecoder::decodeRule(DtBeaconStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("ZoneRule", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    auto value = state.rule();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setRule(value);
    return true;
}

bool DtBeaconDecoder::decodePaper(DtBeaconStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("ReportFrame", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    auto value = state.paper();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setPaper(value);
    return true;
}

bool DtBeaconDecoder::decodeTimes(DtBeaconStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("GateTimes", "ClockTime", R"qx(HLAfixedArray)qx",
        4, 0, 0);
    auto value = state.times();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setTimes(value);
    return true;
}

bool DtBeaconDecoder::decodeChambers(DtBeaconStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("LockGrid", "HarbourUnsigned32", R"qx(HLAfixedArray)qx",
        8, 4, 0);
    auto value = state.chambers();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setChambers(value);
    return true;
}

bool DtBeaconDecoder::decodeRemark(DtBeaconStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("LongNote", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    auto value = state.remark();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setRemark(value);
    return true;
}

bool DtBeaconDecoder::decodeDraughts(DtBeaconStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("DraughtTable", "HLAfloat32LE", R"qx(HLAfixedArray)qx",
        3, 4, 1);
    auto value = state.draughts();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setDraughts(value);
    return true;
}

bool DtBeaconDecoder::decodeRing(DtBeaconStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("TideRing", "HarbourUnsigned16LE", R"qx(HLAvariableArray)qx",
        -1, 2, 1);
    auto value = state.ring();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setRing(value);
    return true;
}

bool DtBeaconDecoder::decodeLines(DtBeaconStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("LineList", "HLAinteger32BE", R"qx(HLAvariableArray)qx",
        4, 4, 0);
    auto value = state.lines();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setLines(value);
    return true;
}

bool DtBeaconDecoder::decodeDeep(DtBeaconStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("Deep32", "HLAinteger32LE", R"qx(HLAvariableArray)qx",
        -1, 4, 1);
    auto value = state.deep();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setDeep(value);
    return true;
}

bool DtBeaconDecoder::decodeSlack(DtBeaconStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("Slack24", "HarbourInteger24LE", R"qx(HLAvariableArray)qx",
        -1, 3, 1);
    auto value = state.slack();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setSlack(value);
    return true;
}

bool DtBeaconDecoder::decodeFind(DtBeaconStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("HullPart32", "HarbourUnsigned32", R"qx(HLAvariableArray)qx",
        -1, 4, 0);
    auto value = state.find();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setFind(value);
    return true;
}

bool DtBeaconDecoder::decodeSpare(DtBeaconStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("Empty__Record", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    auto value = state.spare();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setSpare(value);
    return true;
}

bool DtBeaconDecoder::decodeSteps(DtBeaconStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("HLAinteger32LE", "", R"qx(HLAvariableArray)qx",
        -1, 4, 1);
    auto value = state.steps();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setSteps(value);
    return true;
}

bool DtBeaconDecoder::decodeRank(DtBeaconStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("HLAinteger64LE", "", R"qx(HLAvariableArray)qx",
        -1, 8, 1);
    auto value = state.rank();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setRank(value);
    return true;
}

bool DtBeaconDecoder::decodeFloor(DtBeaconStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("HLAinteger16LE", "", R"qx(HLAvariableArray)qx",
        -1, 2, 1);
    auto value = state.floor();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setFloor(value);
    return true;
}

bool DtBeaconDecoder::decodeSign(DtBeaconStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("Letter", "HLAASCIIchar", R"qx(HLAvariableArray)qx",
        -1, 1, 0);
    auto value = state.sign();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setSign(value);
    return true;
}

bool DtBeaconDecoder::decodeFooting(DtBeaconStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("Depth", "HLAinteger16BE", R"qx(HLAvariableArray)qx",
        -1, 2, 0);
    auto value = state.footing();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setFooting(value);
    return true;
}

bool DtBeaconDecoder::decodeSwing(DtBeaconStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("HarbourInteger24LE", "", R"qx(HLAvariableArray)qx",
        -1, 3, 1);
    auto value = state.swing();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setSwing(value);
    return true;
}

bool DtBeaconDecoder::decodeDoors(DtBeaconStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("DoorStates", "HLAboolean", R"qx(HLAfixedArray)qx",
        3, 0, 0);
    auto value = state.doors();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setDoors(value);
    return true;
}

