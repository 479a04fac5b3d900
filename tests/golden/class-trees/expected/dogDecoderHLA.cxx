// Generated from case; the next generation writes it anew.
 
#include "dogDecoderHLA.h"
 
#include <qx/valueCoding.h>
 
DtDogDecoder::DtDogDecoder()
{
    addCoder("Barks", &DtDogDecoder::decodeBarks);
    addCoder("Weight__Kg", &DtDogDecoder::decodeWeight__Kg);
}

bool DtDogDecoder::decodeBarks(DtDogStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("HLAboolean", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    auto value = state.barks();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setBarks(value);
    return true;
}

bool DtDogDecoder::decodeWeight__Kg(DtDogStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("HLAfloat64BE", "", R"qx(HLAvariableArray)qx",
        -1, 8, 0);
    auto value = state.weight__Kg();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setWeight__Kg(value);
    return true;
}

