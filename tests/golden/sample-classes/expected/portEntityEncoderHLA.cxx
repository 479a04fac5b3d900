// Generated from case; the next generation writes it anew.
 
#include "portEntityEncoderHLA.h"
 
#include <qx/valueCoding.h>
 
DtPortEntityEncoder::DtPortEntityEncoder()
{
    addCoder("Position", &DtPortEntityEncoder::encodePosition);
    addCoder("Name", &DtPortEntityEncoder::encodeName);
    addCoder("Serial", &DtPortEntityEncoder::encodeSerial);
}

bool DtPortEntityEncoder::encodePosition(const DtPortEntityStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("GeoPoint", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, state.position(), form);
}

bool DtPortEntityEncoder::encodeName(const DtPortEntityStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("ShortText", "HLAASCIIchar", R"qx(HLAfixedArray)qx",
        16, 1, 0);
    return DtWriteValue(writer, state.name(), form);
}

bool DtPortEntityEncoder::encodeSerial(const DtPortEntityStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("HLAinteger64BE", "", R"qx(HLAvariableArray)qx",
        -1, 8, 0);
    return DtWriteValue(writer, state.serial(), form);
}

