// Generated from case; the next generation writes it anew.
 
#include "signalInterEncoderHLA.h"
 
#include <qx/valueCoding.h>
 
DtSignalInterEncoder::DtSignalInterEncoder()
{
    if (WithSent)
    {
        addCoder("Sent", &DtSignalInterEncoder::encodeSent);
    }
    if (WithMessage)
    {
        addCoder("Message", &DtSignalInterEncoder::encodeMessage);
    }
    if (WithSure)
    {
        addCoder("Sure", &DtSignalInterEncoder::encodeSure);
    }
}

bool DtSignalInterEncoder::encodeSent(const DtSignalInter& interaction, DtWireWriter& writer)
{
    const DtWireForm form("ClockTime", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, interaction.sent(), form);
}

bool DtSignalInterEncoder::encodeMessage(const DtSignalInter& interaction, DtWireWriter& writer)
{
    const DtWireForm form("SignalMessage", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, interaction.message(), form);
}

bool DtSignalInterEncoder::encodeSure(const DtSignalInter& interaction, DtWireWriter& writer)
{
    const DtWireForm form("HLAboolean", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, interaction.sure(), form);
}

