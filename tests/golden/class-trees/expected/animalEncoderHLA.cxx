// Generated from case; the next generation writes it anew.
 
#include "animalEncoderHLA.h"
 
#include <qx/valueCoding.h>
 
DtAnimalEncoder::DtAnimalEncoder()
{
    addCoder("Name", &DtAnimalEncoder::encodeName);
    addCoder("Legs", &DtAnimalEncoder::encodeLegs);
}

bool DtAnimalEncoder::encodeName(const DtAnimalStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("HLAunicodeString", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, state.name(), form);
}

bool DtAnimalEncoder::encodeLegs(const DtAnimalStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("HLAinteger32BE", "", R"qx(HLAvariableArray)qx",
        -1, 4, 0);
    return DtWriteValue(writer, state.legs(), form);
}

