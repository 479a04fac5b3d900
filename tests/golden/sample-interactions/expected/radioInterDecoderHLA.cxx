// Generated from case; the next generation writes it anew.
 
#include "radioInterDecoderHLA.h"
 
#include <qx/valueCoding.h>
 
DtRadioInterDecoder::DtRadioInterDecoder()
{
    addCoder("Channel", &DtRadioInterDecoder::decodeChannel);
    addCoder("Text", &DtRadioInterDecoder::decodeText);
}

bool DtRadioInterDecoder::decodeChannel(DtRadioInter& interaction, DtWireReader& reader)
{
    const DtWireForm form("HLAinteger16BE", "", R"qx(HLAvariableArray)qx",
        -1, 2, 0);
    auto value = interaction.channel();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    interaction.setChannel(value);
    return true;
}

bool DtRadioInterDecoder::decodeText(DtRadioInter& interaction, DtWireReader& reader)
{
    const DtWireForm form("HLAunicodeString", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    auto value = interaction.text();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    interaction.setText(value);
    return true;
}

