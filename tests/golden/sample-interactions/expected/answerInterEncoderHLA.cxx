// Generated from case; the next generation writes it anew.
 
#include "answerInterEncoderHLA.h"
 
#include <qx/valueCoding.h>
 
DtAnswerInterEncoder::DtAnswerInterEncoder()
{
    if (WithDone)
    {
        addCoder("Done", &DtAnswerInterEncoder::encodeDone);
    }
    if (WithReason)
    {
        addCoder("Reason", &DtAnswerInterEncoder::encodeReason);
    }
}

bool DtAnswerInterEncoder::encodeDone(const DtAnswerInter& interaction, DtWireWriter& writer)
{
    const DtWireForm form("HLAboolean", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, interaction.done(), form);
}

bool DtAnswerInterEncoder::encodeReason(const DtAnswerInter& interaction, DtWireWriter& writer)
{
    const DtWireForm form("Occupant", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, interaction.reason(), form);
}

