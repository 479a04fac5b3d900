// Generated from case; the next generation writes it anew.
 
#include "orderInterDIS.h"
 
#include <qx/interactionWithEncDec.h>
#include <qx/valueCoding.h>
 
DtOrderInterInter::DtOrderInterInter() : DtOrderInterInter(std::string("Radio.Order"))
{
}
 
DtOrderInterInter::DtOrderInterInter(const std::string& fullClassName)
    : DtRadioInter(fullClassName), Own()
{
}
 
bool DtOrderInterInter::send(DtExerciseConn* exerciseConn, const DtOrderInterInter& interaction)
{
    return exerciseConn->sendPdu(DtOrderInterPdu::theKind, interaction, DtSharedEncoder<DtOrderInterEncoder>());
}
 
void DtOrderInterInter::addCallback(DtExerciseConn* exerciseConn, DtOrderInterInterCb callback, void* user)
{
    exerciseConn->addPduCallback(DtOrderInterPdu::theKind, &DtSharedDecoder<DtOrderInterDecoder>, callback, user);
}
 
void DtOrderInterInter::removeCallback(DtExerciseConn* exerciseConn, DtOrderInterInterCb callback, void* user)
{
    exerciseConn->removePduCallback(DtOrderInterPdu::theKind, callback, user);
}

void DtOrderInterInter::setUrgency(const ValueOfUrgency& value)
{
    Own.myUrgency = value;
}
 
const DtOrderInterInter::ValueOfUrgency& DtOrderInterInter::urgency() const
{
    return Own.myUrgency;
}

void DtOrderInterInter::setTheRegister(const ValueOfTheRegister& value)
{
    Own.myTheRegister = value;
}
 
const DtOrderInterInter::ValueOfTheRegister& DtOrderInterInter::theRegister() const
{
    return Own.myTheRegister;
}

// ---- coding
static bool encode_DtOrderInter_Urgency(const DtOrderInterInter& interaction, DtWireWriter& writer)
{
    const DtWireForm form("Urgency8", "HarbourUnsigned8", R"qx(HLAvariableArray)qx",
        -1, 1, 0);
    return DtWriteValue(writer, interaction.urgency(), form);
}
 
static bool decode_DtOrderInter_Urgency(DtOrderInterInter& interaction, DtWireReader& reader)
{
    const DtWireForm form("Urgency8", "HarbourUnsigned8", R"qx(HLAvariableArray)qx",
        -1, 1, 0);
    auto value = interaction.urgency();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    interaction.setUrgency(value);
    return true;
}
static bool encode_DtOrderInter_TheRegister(const DtOrderInterInter& interaction, DtWireWriter& writer)
{
    const DtWireForm form("HLAinteger32LE", "", R"qx(HLAvariableArray)qx",
        -1, 4, 1);
    return DtWriteValue(writer, interaction.theRegister(), form);
}
 
static bool decode_DtOrderInter_TheRegister(DtOrderInterInter& interaction, DtWireReader& reader)
{
    const DtWireForm form("HLAinteger32LE", "", R"qx(HLAvariableArray)qx",
        -1, 4, 1);
    auto value = interaction.theRegister();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    interaction.setTheRegister(value);
    return true;
}

DtOrderInterEncoder::DtOrderInterEncoder()
{
    addCoder("Urgency", &encode_DtOrderInter_Urgency);
    addCoder("register", &encode_DtOrderInter_TheRegister);
}
 
DtOrderInterDecoder::DtOrderInterDecoder()
{
    addCoder("Urgency", &decode_DtOrderInter_Urgency);
    addCoder("register", &decode_DtOrderInter_TheRegister);
}

