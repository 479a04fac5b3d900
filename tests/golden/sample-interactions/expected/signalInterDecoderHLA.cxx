// Generated from case; the next generation writes it anew.
 
#include "signalInterDecoderHLA.h"
 
#include <qx/valueCoding.h>
 
DtSignalInterDecoder::DtSignalInterDecoder()
{
    addCoder("Sent", &DtSignalInterDecoder::decodeSent);
    addCoder("Message", &DtSignalInterDecoder::decodeMessage);
    addCoder("Sure", &DtSignalInterDecoder::decodeSure);
}

bool DtSignalInterDecoder::decodeSent(DtSignalInter& interaction, DtWireReader& reader)
{
    const DtWireForm form("ClockTime", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    auto value = interaction.sent();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    interaction.setSent(value);
    return true;
}

bool DtSignalInterDecoder::decodeMessage(DtSignalInter& interaction, DtWireReader& reader)
{
    const DtWireForm form("SignalMessage", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    auto value = interaction.message();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    interaction.setMessage(value);
    return true;
}

bool DtSignalInterDecoder::decodeSure(DtSignalInter& interaction, DtWireReader& reader)
{
    const DtWireForm form("HLAboolean", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    auto value = interaction.sure();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    interaction.setSure(value);
    return true;
}

