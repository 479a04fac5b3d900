// Generated from case; the next generation writes it anew.
 
#include "callInterDecoderHLA.h"
 
#include <qx/valueCoding.h>
 
DtCallInterDecoder::DtCallInterDecoder()
{
    addCoder("Text", &DtCallInterDecoder::decodeText);
}

bool DtCallInterDecoder::decodeText(DtCallInter& interaction, DtWireReader& reader)
{
    const DtWireForm form("HLAASCIIstring", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    auto value = interaction.text();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    interaction.setText(value);
    return true;
}

