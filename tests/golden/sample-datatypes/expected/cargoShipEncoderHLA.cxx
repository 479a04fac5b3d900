// Generated from case; the next generation writes it anew.
 
#include "cargoShipEncoderHLA.h"
 
#include <qx/valueCoding.h>
 
DtCargoShipEncoder::DtCargoShipEncoder()
{
    addCoder("Holds", &DtCargoShipEncoder::encodeHolds);
    addCoder("Manifest", &DtCargoShipEncoder::encodeManifest);
    addCoder("Draught", &DtCargoShipEncoder::encodeDraught);
    addCoder("Dangerous", &DtCargoShipEncoder::encodeDangerous);
    addCoder("Seal", &DtCargoShipEncoder::encodeSeal);
}

bool DtCargoShipEncoder::encodeHolds(const DtCargoShipStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("HoldTable", "Hold", R"qx(HLAfixedArray)qx",
        4, 0, 0);
    return DtWriteValue(writer, state.holds(), form);
}

bool DtCargoShipEncoder::encodeManifest(const DtCargoShipStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("Cargo_Item_List", "Cargo__Item", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, state.manifest(), form);
}

bool DtCargoShipEncoder::encodeDraught(const DtCargoShipStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("HLAfloat32LE", "", R"qx(HLAvariableArray)qx",
        -1, 4, 1);
    return DtWriteValue(writer, state.draught(), form);
}

bool DtCargoShipEncoder::encodeDangerous(const DtCargoShipStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("HLAboolean", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, state.dangerous(), form);
}

bool DtCargoShipEncoder::encodeSeal(const DtCargoShipStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("Seal__Code", "HLAoctet", R"qx(HLAfixedArray)qx",
        8, 1, 0);
    return DtWriteValue(writer, state.seal(), form);
}

