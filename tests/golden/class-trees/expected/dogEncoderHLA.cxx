// Generated from case; the next generation writes it anew.
 
#include "dogEncoderHLA.h"
 
#include <qx/valueCoding.h>
 
DtDogEncoder::DtDogEncoder()
{
    addCoder("Barks", &DtDogEncoder::encodeBarks);
    addCoder("Weight__Kg", &DtDogEncoder::encodeWeight__Kg);
}

bool DtDogEncoder::encodeBarks(const DtDogStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("HLAboolean", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, state.barks(), form);
}

bool DtDogEncoder::encodeWeight__Kg(const DtDogStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("HLAfloat64BE", "", R"qx(HLAvariableArray)qx",
        -1, 8, 0);
    return DtWriteValue(writer, state.weight__Kg(), form);
}

