// Generated from case; the next generation writes it anew.
 
#include "tug__PusherEncoderDIS.h"
 
#include <qx/valueCoding.h>
 
DtTug__PusherEncoder::DtTug__PusherEncoder()
{
    addCoder("Pull__Push", &DtTug__PusherEncoder::encodePull__Push);
    addCoder("Line__1", &DtTug__PusherEncoder::encodeLine__1);
    addCoder("Owner", &DtTug__PusherEncoder::encodeOwner);
}
bool DtTug__PusherEncoder::encodePull__Push(const DtTug__PusherStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("Newton", "HLAfloat64LE", R"qx(HLAvariableArray)qx",
        -1, 8, 1);
    return DtWriteValue(writer, state.pull__Push(), form);
}
bool DtTug__PusherEncoder::encodeLine__1(const DtTug__PusherStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("LineState32", "HLAinteger32BE", R"qx(HLAvariableArray)qx",
        -1, 4, 0);
    return DtWriteValue(writer, state.line__1(), form);
}
bool DtTug__PusherEncoder::encodeOwner(const DtTug__PusherStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("HLAASCIIstring", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, state.owner(), form);
}

