// Generated from case; the next generation writes it anew.
 
#include "beds/waterInterDecoderHLA.h"
 
#include <qx/valueCoding.h>
 
namespace garden
{
 
DtQxWaterInterDecoder::DtQxWaterInterDecoder()
{
    addCoder("Litres", &DtQxWaterInterDecoder::decodeLitres);
}

bool DtQxWaterInterDecoder::decodeLitres(DtQxWaterInter& interaction, DtWireReader& reader)
{
    const DtWireForm form("HLAfloat32BE", "", R"qx(HLAvariableArray)qx",
        -1, 4, 0);
    auto value = interaction.litres();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    interaction.setLitres(value);
    return true;
}

} // namespace garden

