// Generated from case; the next generation writes it anew.
 
#include "orderInterEncoderHLA.h"
 
#include <qx/valueCoding.h>
 
DtOrderInterEncoder::DtOrderInterEncoder()
{
    if (WithUrgency)
    {
        addCoder("Urgency", &DtOrderInterEncoder::encodeUrgency);
    }
    if (WithTheRegister)
    {
        addCoder("register", &DtOrderInterEncoder::encodeTheRegister);
    }
}

bool DtOrderInterEncoder::encodeUrgency(const DtOrderInter& interaction, DtWireWriter& writer)
{
    const DtWireForm form("Urgency8", "HarbourUnsigned8", R"qx(HLAvariableArray)qx",
        -1, 1, 0);
    return DtWriteValue(writer, interaction.urgency(), form);
}

bool DtOrderInterEncoder::encodeTheRegister(const DtOrderInter& interaction, DtWireWriter& writer)
{
    const DtWireForm form("HLAinteger32LE", "", R"qx(HLAvariableArray)qx",
        -1, 4, 1);
    return DtWriteValue(writer, interaction.theRegister(), form);
}

