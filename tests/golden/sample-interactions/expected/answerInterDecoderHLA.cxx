// Generated from case; the next generation writes it anew.
 
#include "answerInterDecoderHLA.h"
 
#include <qx/valueCoding.h>
 
DtAnswerInterDecoder::DtAnswerInterDecoder()
{
    addCoder("Done", &DtAnswerInterDecoder::decodeDone);
    addCoder("Reason", &DtAnswerInterDecoder::decodeReason);
}

bool DtAnswerInterDecoder::decodeDone(DtAnswerInter& interaction, DtWireReader& reader)
{
    const DtWireForm form("HLAboolean", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    auto value = interaction.done();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    interaction.setDone(value);
    return true;
}

bool DtAnswerInterDecoder::decodeReason(DtAnswerInter& interaction, DtWireReader& reader)
{
    const DtWireForm form("Occupant", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    auto value = interaction.reason();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    interaction.setReason(value);
    return true;
}

