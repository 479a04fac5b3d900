// Generated from case; the next generation writes it anew.
 
#include "tug__PusherDecoderDIS.h"
 
#include <qx/valueCoding.h>
 
DtTug__PusherDecoder::DtTug__PusherDecoder()
{
    addCoder("Pull__Push", &DtTug__PusherDecoder::decodePull__Push);
    addCoder("Line__1", &DtTug__PusherDecoder::decodeLine__1);
    addCoder("Owner", &DtTug__PusherDecoder::decodeOwner);
}
bool DtTug__PusherDecoder::decodePull__Push(DtTug__PusherStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("Newton", "HLAfloat64LE", R"qx(HLAvariableArray)qx",
        -1, 8, 1);
    auto value = state.pull__Push();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setPull__Push(value);
    return true;
}
bool DtTug__PusherDecoder::decodeLine__1(DtTug__PusherStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("LineState32", "HLAinteger32BE", R"qx(HLAvariableArray)qx",
        -1, 4, 0);
    auto value = state.line__1();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setLine__1(value);
    return true;
}
bool DtTug__PusherDecoder::decodeOwner(DtTug__PusherStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("HLAASCIIstring", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    auto value = state.owner();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setOwner(value);
    return true;
}

