// Generated from case; the next generation writes it anew.
 
#include "orderInterDecoderHLA.h"
 
#include <qx/valueCoding.h>
 
DtOrderInterDecoder::DtOrderInterDecoder()
{
    addCoder("Urgency", &DtOrderInterDecoder::decodeUrgency);
    addCoder("register", &DtOrderInterDecoder::decodeTheRegister);
}

bool DtOrderInterDecoder::decodeUrgency(DtOrderInter& interaction, DtWireReader& reader)
{
    const DtWireForm form("Urgency8", "HarbourUnsigned8", R"qx(HLAvariableArray)qx",
        -1, 1, 0);
    auto value = interaction.urgency();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    interaction.setUrgency(value);
    return true;
}

bool DtOrderInterDecoder::decodeTheRegister(DtOrderInter& interaction, DtWireReader& reader)
{
    const DtWireForm form("HLAinteger32LE", "", R"qx(HLAvariableArray)qx",
        -1, 4, 1);
    auto value = interaction.theRegister();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    interaction.setTheRegister(value);
    return true;
}

