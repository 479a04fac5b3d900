// Generated from case; the next generation writes it anew.
 
#include "callInterEncoderHLA.h"
 
#include <qx/valueCoding.h>
 
DtCallInterEncoder::DtCallInterEncoder()
{
    if (WithText)
    {
        addCoder("Text", &DtCallInterEncoder::encodeText);
    }
}

bool DtCallInterEncoder::encodeText(const DtCallInter& interaction, DtWireWriter& writer)
{
    const DtWireForm form("HLAASCIIstring", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, interaction.text(), form);
}

