// Generated from case; the next generation writes it anew.
 
#include "signalInterDIS.h"
 
#include <qx/interactionWithEncDec.h>
#include <qx/valueCoding.h>
 
DtSignalInterInter::DtSignalInterInter() : DtSignalInterInter(std::string("Signal"))
{
}
 
DtSignalInterInter::DtSignalInterInter(const std::string& fullClassName)
    : DtInteraction(fullClassName), Own()
{
}
 
bool DtSignalInterInter::send(DtExerciseConn* exerciseConn, const DtSignalInterInter& interaction)
{
    return exerciseConn->sendPdu(DtSignalInterPdu::theKind, interaction, DtSharedEncoder<DtSignalInterEncoder>());
}
 
void DtSignalInterInter::addCallback(DtExerciseConn* exerciseConn, DtSignalInterInterCb callback, void* user)
{
    exerciseConn->addPduCallback(DtSignalInterPdu::theKind, &DtSharedDecoder<DtSignalInterDecoder>, callback, user);
}
 
void DtSignalInterInter::removeCallback(DtExerciseConn* exerciseConn, DtSignalInterInterCb callback, void* user)
{
    exerciseConn->removePduCallback(DtSignalInterPdu::theKind, callback, user);
}

void DtSignalInterInter::setSent(const ValueOfSent& value)
{
    Own.mySent = value;
}
 
const DtSignalInterInter::ValueOfSent& DtSignalInterInter::sent() const
{
    return Own.mySent;
}

void DtSignalInterInter::setMessage(const ValueOfMessage& value)
{
    Own.myMessage = value;
}
 
const DtSignalInterInter::ValueOfMessage& DtSignalInterInter::message() const
{
    return Own.myMessage;
}

void DtSignalInterInter::setSure(const ValueOfSure& value)
{
    Own.mySure = value;
}
 
const DtSignalInterInter::ValueOfSure& DtSignalInterInter::sure() const
{
    return Own.mySure;
}

// ---- coding
static bool encode_DtSignalInter_Sent(const DtSignalInterInter& interaction, DtWireWriter& writer)
{
    const DtWireForm form("ClockTime", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, interaction.sent(), form);
}
 
static bool decode_DtSignalInter_Sent(DtSignalInterInter& interaction, DtWireReader& reader)
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
static bool encode_DtSignalInter_Message(const DtSignalInterInter& interaction, DtWireWriter& writer)
{
    const DtWireForm form("SignalMessage", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, interaction.message(), form);
}
 
static bool decode_DtSignalInter_Message(DtSignalInterInter& interaction, DtWireReader& reader)
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
static bool encode_DtSignalInter_Sure(const DtSignalInterInter& interaction, DtWireWriter& writer)
{
    const DtWireForm form("HLAboolean", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, interaction.sure(), form);
}
 
static bool decode_DtSignalInter_Sure(DtSignalInterInter& interaction, DtWireReader& reader)
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

DtSignalInterEncoder::DtSignalInterEncoder()
{
    addCoder("Sent", &encode_DtSignalInter_Sent);
    addCoder("Message", &encode_DtSignalInter_Message);
    addCoder("Sure", &encode_DtSignalInter_Sure);
}
 
DtSignalInterDecoder::DtSignalInterDecoder()
{
    addCoder("Sent", &decode_DtSignalInter_Sent);
    addCoder("Message", &decode_DtSignalInter_Message);
    addCoder("Sure", &decode_DtSignalInter_Sure);
}

