// Generated from case; the next generation writes it anew.
 
#include "cargoShipDecoderHLA.h"
 
#include <qx/valueCoding.h>
 
DtCargoShipDecoder::DtCargoShipDecoder()
{
    addCoder("Holds", &DtCargoShipDecoder::decodeHolds);
    addCoder("Manifest", &DtCargoShipDecoder::decodeManifest);
    addCoder("Draught", &DtCargoShipDecoder::decodeDraught);
    addCoder("Dangerous", &DtCargoShipDecoder::decodeDangerous);
    addCoder("Seal", &DtCargoShipDecoder::decodeSeal);
}

bool DtCargoShipDecoder::decodeHolds(DtCargoShipStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("HoldTable", "Hold", R"qx(HLAfixedArray)qx",
        4, 0, 0);
    auto value = state.holds();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setHolds(value);
    return true;
}

bool DtCargoShipDecoder::decodeManifest(DtCargoShipStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("Cargo_Item_List", "Cargo__Item", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    auto value = state.manifest();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setManifest(value);
    return true;
}

bool DtCargoShipDecoder::decodeDraught(DtCargoShipStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("HLAfloat32LE", "", R"qx(HLAvariableArray)qx",
        -1, 4, 1);
    auto value = state.draught();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setDraught(value);
    return true;
}

bool DtCargoShipDecoder::decodeDangerous(DtCargoShipStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("HLAboolean", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    auto value = state.dangerous();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setDangerous(value);
    return true;
}

bool DtCargoShipDecoder::decodeSeal(DtCargoShipStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("Seal__Code", "HLAoctet", R"qx(HLAfixedArray)qx",
        8, 1, 0);
    auto value = state.seal();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setSeal(value);
    return true;
}

