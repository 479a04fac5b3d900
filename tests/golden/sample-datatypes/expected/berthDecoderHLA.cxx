// Generated from case; the next generation writes it anew.
 
#include "berthDecoderHLA.h"
 
#include <qx/valueCoding.h>
 
DtBerthDecoder::DtBerthDecoder()
{
    addCoder("Length", &DtBerthDecoder::decodeLength);
    addCoder("Depths", &DtBerthDecoder::decodeDepths);
    addCoder("Occupant", &DtBerthDecoder::decodeOccupant);
    addCoder("Flags", &DtBerthDecoder::decodeFlags);
    addCoder("Kind64", &DtBerthDecoder::decodeKind64);
    addCoder("Fenders", &DtBerthDecoder::decodeFenders);
}

bool DtBerthDecoder::decodeLength(DtBerthStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("HLAfloat64BE", "", R"qx(HLAvariableArray)qx",
        -1, 8, 0);
    auto value = state.length();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setLength(value);
    return true;
}

bool DtBerthDecoder::decodeDepths(DtBerthStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("DepthGrid", "HLAinteger16BE", R"qx(HLAfixedArray)qx",
        12, 2, 0);
    auto value = state.depths();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setDepths(value);
    return true;
}

bool DtBerthDecoder::decodeOccupant(DtBerthStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("DtOccupant", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    auto value = state.occupant();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setOccupant(value);
    return true;
}

bool DtBerthDecoder::decodeFlags(DtBerthStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("FlagBits", "HLAoctet", R"qx(HLAbitArray)qx",
        -1, 1, 0);
    auto value = state.flags();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setFlags(value);
    return true;
}

bool DtBerthDecoder::decodeKind64(DtBerthStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("BerthKind64", "HLAinteger64BE", R"qx(HLAvariableArray)qx",
        -1, 8, 0);
    auto value = state.kind64();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setKind64(value);
    return true;
}

bool DtBerthDecoder::decodeFenders(DtBerthStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("FenderList", "HarbourUnsigned8", R"qx(RPRpaddingTo32Array)qx",
        -1, 1, 0);
    auto value = state.fenders();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setFenders(value);
    return true;
}

