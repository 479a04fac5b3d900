// Generated from case; the next generation writes it anew.
 
#include "beds/flowerEncoderHLA.h"
 
#include <qx/valueCoding.h>
 
namespace garden
{
 
DtQxFlowerEncoder::DtQxFlowerEncoder()
{
    addCoder("Colour", &DtQxFlowerEncoder::encodeColour);
    addCoder("Seed", &DtQxFlowerEncoder::encodeSeed);
}

bool DtQxFlowerEncoder::encodeColour(const DtQxFlowerStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("Colour8", "HLAoctet", R"qx(HLAvariableArray)qx",
        -1, 1, 0);
    return DtWriteValue(writer, state.colour(), form);
}

#error "Seed: values of DtQxPacket cannot be encoded"
bool DtQxFlowerEncoder::encodeSeed(const DtQxFlowerStateRepository& state, DtWireWriter& writer)
{
    const DtWireForm form("Packet", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, state.seed(), form);
}

} // namespace garden

