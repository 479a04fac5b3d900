// Generated from case; the next generation writes it anew.
 
#include "animalDecoderHLA.h"
 
#include <qx/valueCoding.h>
 
DtAnimalDecoder::DtAnimalDecoder()
{
    addCoder("Name", &DtAnimalDecoder::decodeName);
    addCoder("Legs", &DtAnimalDecoder::decodeLegs);
}

bool DtAnimalDecoder::decodeName(DtAnimalStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("HLAunicodeString", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    auto value = state.name();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setName(value);
    return true;
}

bool DtAnimalDecoder::decodeLegs(DtAnimalStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("HLAinteger32BE", "", R"qx(HLAvariableArray)qx",
        -1, 4, 0);
    auto value = state.legs();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setLegs(value);
    return true;
}

