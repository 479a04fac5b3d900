// Generated from case; the next generation writes it anew.
 
#include "beds/waterInterEncoderHLA.h"
 
#include <qx/valueCoding.h>
 
namespace garden
{
 
DtQxWaterInterEncoder::DtQxWaterInterEncoder()
{
    if (WithLitres)
    {
        addCoder("Litres", &DtQxWaterInterEncoder::encodeLitres);
    }
}

bool DtQxWaterInterEncoder::encodeLitres(const DtQxWaterInter& interaction, DtWireWriter& writer)
{
    const DtWireForm form("HLAfloat32BE", "", R"qx(HLAvariableArray)qx",
        -1, 4, 0);
    return DtWriteValue(writer, interaction.litres(), form);
}

} // namespace garden

