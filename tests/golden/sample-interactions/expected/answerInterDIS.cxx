// Generated from case; the next generation writes it anew.
 
#include "answerInterDIS.h"
 
#include <qx/interactionWithEncDec.h>
#include <qx/valueCoding.h>
 
DtAnswerInterInter::DtAnswerInterInter() : DtAnswerInterInter(std::string("Radio.Answer"))
{
}
 
DtAnswerInterInter::DtAnswerInterInter(const std::string& fullClassName)
    : DtRadioInter(fullClassName), Own()
{
}
 
bool DtAnswerInterInter::send(DtExerciseConn* exerciseConn, const DtAnswerInterInter& interaction)
{
    return exerciseConn->sendPdu(DtAnswerInterPdu::theKind, interaction, DtSharedEncoder<DtAnswerInterEncoder>());
}
 
void DtAnswerInterInter::addCallback(DtExerciseConn* exerciseConn, DtAnswerInterInterCb callback, void* user)
{
    exerciseConn->addPduCallback(DtAnswerInterPdu::theKind, &DtSharedDecoder<DtAnswerInterDecoder>, callback, user);
}
 
void DtAnswerInterInter::removeCallback(DtExerciseConn* exerciseConn, DtAnswerInterInterCb callback, void* user)
{
    exerciseConn->removePduCallback(DtAnswerInterPdu::theKind, callback, user);
}

void DtAnswerInterInter::setDone(const ValueOfDone& value)
{
    Own.myDone = value;
}
 
const DtAnswerInterInter::ValueOfDone& DtAnswerInterInter::done() const
{
    return Own.myDone;
}

void DtAnswerInterInter::setReason(const ValueOfReason& value)
{
    Own.myReason = value;
}
 
const DtAnswerInterInter::ValueOfReason& DtAnswerInterInter::reason() const
{
    return Own.myReason;
}

// ---- coding
static bool encode_DtAnswerInter_Done(const DtAnswerInterInter& interaction, DtWireWriter& writer)
{
    const DtWireForm form("HLAboolean", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, interaction.done(), form);
}
 
static bool decode_DtAnswerInter_Done(DtAnswerInterInter& interaction, DtWireReader& reader)
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
static bool encode_DtAnswerInter_Reason(const DtAnswerInterInter& interaction, DtWireWriter& writer)
{
    const DtWireForm form("Occupant", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, interaction.reason(), form);
}
 
static bool decode_DtAnswerInter_Reason(DtAnswerInterInter& interaction, DtWireReader& reader)
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

DtAnswerInterEncoder::DtAnswerInterEncoder()
{
    addCoder("Done", &encode_DtAnswerInter_Done);
    addCoder("Reason", &encode_DtAnswerInter_Reason);
}
 
DtAnswerInterDecoder::DtAnswerInterDecoder()
{
    addCoder("Done", &decode_DtAnswerInter_Done);
    addCoder("Reason", &decode_DtAnswerInter_Reason);
}

