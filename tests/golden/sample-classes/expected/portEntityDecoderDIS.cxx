// Generated from case; the next generation writes it anew.
 
#include "portEntityDecoderDIS.h"
 
#include <qx/valueCoding.h>
 
DtPortEntityDecoder::DtPortEntityDecoder()
{
    addCoder("Position", &DtPortEntityDecoder::decodePosition);
    addCoder("Name", &DtPortEntityDecoder::decodeName);
    addCoder("Serial", &DtPortEntityDecoder::decodeSerial);
}
bool DtPortEntityDecoder::decodePosition(DtPortEntityStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("GeoPoint", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    auto value = state.position();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setPosition(value);
    return true;
}
bool DtPortEntityDecoder::decodeName(DtPortEntityStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("ShortText", "HLAASCIIchar", R"qx(HLAfixedArray)qx",
        16, 1, 0);
    auto value = state.name();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setName(value);
    return true;
}
bool DtPortEntityDecoder::decodeSerial(DtPortEntityStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("HLAinteger64BE", "", R"qx(HLAvariableArray)qx",
        -1, 8, 0);
    auto value = state.serial();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setSerial(value);
    return true;
}

