// Generated from case; the next generation writes it anew.
 
#include "beds/flowerDecoderHLA.h"
 
#include <qx/valueCoding.h>
 
namespace garden
{
 
DtQxFlowerDecoder::DtQxFlowerDecoder()
{
    addCoder("Colour", &DtQxFlowerDecoder::decodeColour);
    addCoder("Seed", &DtQxFlowerDecoder::decodeSeed);
}

bool DtQxFlowerDecoder::decodeColour(DtQxFlowerStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("Colour8", "HLAoctet", R"qx(HLAvariableArray)qx",
        -1, 1, 0);
    auto value = state.colour();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setColour(value);
    return true;
}

#error "Seed: values of DtQxPacket cannot be decoded"
bool DtQxFlowerDecoder::decodeSeed(DtQxFlowerStateRepository& state, DtWireReader& reader)
{
    const DtWireForm form("Packet", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    auto value = state.seed();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    state.setSeed(value);
    return true;
}

} // namespace garden

