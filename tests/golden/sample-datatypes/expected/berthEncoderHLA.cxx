// Generated from case; the next generation writes it anew.
 
#include "berthEncoderHLA.h"
 
#include <qx/valueCoding.h>
 
DtBerthEncoder::DtBerthEncoder()
{
    addCoder("Length", &DtBerthEncoder::encodeLength);
    addCoder("Depths", &DtBerthEncoder::encodeDepths);
    addCoder("Occupant", &DtBerthEncoder::encodeOccupant);
    addCoder("Flags", &DtBerthEncoder::encodeFlags);
    addCoder("Kind64", &DtBerthEncoder::encodeKind64);
    addCoder("Fenders", &DtBerthEncoder::encodeFenders);
}

bool DtBerthEncoder::encodeLength(const DtBerthStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("HLAfloat64BE", "", R"qx(HLAvariableArray)qx",
        -1, 8, 0);
    return DtWriteValue(writer, state.length(), form);
}

bool DtBerthEncoder::encodeDepths(const DtBerthStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("DepthGrid", "HLAinteger16BE", R"qx(HLAfixedArray)qx",
        12, 2, 0);
    return DtWriteValue(writer, state.depths(), form);
}

bool DtBerthEncoder::encodeOccupant(const DtBerthStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("DtOccupant", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, state.occupant(), form);
}

bool DtBerthEncoder::encodeFlags(const DtBerthStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("FlagBits", "HLAoctet", R"qx(HLAbitArray)qx",
        -1, 1, 0);
    return DtWriteValue(writer, state.flags(), form);
}

bool DtBerthEncoder::encodeKind64(const DtBerthStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("BerthKind64", "HLAinteger64BE", R"qx(HLAvariableArray)qx",
        -1, 8, 0);
    return DtWriteValue(writer, state.kind64(), form);
}

bool DtBerthEncoder::encodeFenders(const DtBerthStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("FenderList", "HarbourUnsigned8", R"qx(RPRpaddingTo32Array)qx",
        -1, 1, 0);
    return DtWriteValue(writer, state.fenders(), form);
}

