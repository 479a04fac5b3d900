// Generated from case; the next generation writes it anew.
 
#include "radioInterEncoderHLA.h"
 
#include <qx/valueCoding.h>
 
DtRadioInterEncoder::DtRadioInterEncoder()
{
    if (WithChannel)
    {
        addCoder("Channel", &DtRadioInterEncoder::encodeChannel);
    }
    if (WithText)
    {
        addCoder("Text", &DtRadioInterEncoder::encodeText);
    }
}

bool DtRadioInterEncoder::encodeChannel(const DtRadioInter& interaction, DtWireWriter& writer)
{
    const DtWireForm form("HLAinteger16BE", "", R"qx(HLAvariableArray)qx",
        -1, 2, 0);
    return DtWriteValue(writer, interaction.channel(), form);
}

bool DtRadioInterEncoder::encodeText(const DtRadioInter& interaction, DtWireWriter& writer)
{
    const DtWireForm form("HLAunicodeString", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, interaction.text(), form);
}

