// Generated from case; the next generation writes it anew.
 
#include "radioInterDIS.h"
 
#include <qx/interactionWithEncDec.h>
#include <qx/valueCoding.h>
 
DtRadioInterInter::DtRadioInterInter() : DtRadioInterInter(std::string("Radio"))
{
}
 
DtRadioInterInter::DtRadioInterInter(const std::string& fullClassName)
    : DtInteraction(fullClassName), Own()
{
}
 
bool DtRadioInterInter::send(DtExerciseConn* exerciseConn, const DtRadioInterInter& interaction)
{
    return exerciseConn->sendPdu(DtRadioInterPdu::theKind, interaction, DtSharedEncoder<DtRadioInterEncoder>());
}
 
void DtRadioInterInter::addCallback(DtExerciseConn* exerciseConn, DtRadioInterInterCb callback, void* user)
{
    exerciseConn->addPduCallback(DtRadioInterPdu::theKind, &DtSharedDecoder<DtRadioInterDecoder>, callback, user);
}
 
void DtRadioInterInter::removeCallback(DtExerciseConn* exerciseConn, DtRadioInterInterCb callback, void* user)
{
    exerciseConn->removePduCallback(DtRadioInterPdu::theKind, callback, user);
}

void DtRadioInterInter::setChannel(const ValueOfChannel& value)
{
    Own.myChannel = value;
}
 
const DtRadioInterInter::ValueOfChannel& DtRadioInterInter::channel() const
{
    return Own.myChannel;
}

void DtRadioInterInter::setText(const ValueOfText& value)
{
    Own.myText = value;
}
 
const DtRadioInterInter::ValueOfText& DtRadioInterInter::text() const
{
    return Own.myText;
}

// ---- coding
static bool encode_DtRadioInter_Channel(const DtRadioInterInter& interaction, DtWireWriter& writer)
{
    const DtWireForm form("HLAinteger16BE", "", R"qx(HLAvariableArray)qx",
        -1, 2, 0);
    return DtWriteValue(writer, interaction.channel(), form);
}
 
static bool decode_DtRadioInter_Channel(DtRadioInterInter& interaction, DtWireReader& reader)
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
static bool encode_DtRadioInter_Text(const DtRadioInterInter& interaction, DtWireWriter& writer)
{
    const DtWireForm form("HLAunicodeString", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, interaction.text(), form);
}
 
static bool decode_DtRadioInter_Text(DtRadioInterInter& interaction, DtWireReader& reader)
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

DtRadioInterEncoder::DtRadioInterEncoder()
{
    addCoder("Channel", &encode_DtRadioInter_Channel);
    addCoder("Text", &encode_DtRadioInter_Text);
}
 
DtRadioInterDecoder::DtRadioInterDecoder()
{
    addCoder("Channel", &decode_DtRadioInter_Channel);
    addCoder("Text", &decode_DtRadioInter_Text);
}

