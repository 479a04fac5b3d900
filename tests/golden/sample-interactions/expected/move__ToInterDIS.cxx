// Generated from case; the next generation writes it anew.
 
#include "move__ToInterDIS.h"
 
#include <qx/interactionWithEncDec.h>
#include <qx/valueCoding.h>
 
DtMove__ToInterInter::DtMove__ToInterInter() : DtMove__ToInterInter(std::string("Radio.Order.Move-To"))
{
}
 
DtMove__ToInterInter::DtMove__ToInterInter(const std::string& fullClassName)
    : DtOrderInter(fullClassName), Own()
{
}
 
bool DtMove__ToInterInter::send(DtExerciseConn* exerciseConn, const DtMove__ToInterInter& interaction)
{
    return exerciseConn->sendPdu(DtMove__ToInterPdu::theKind, interaction, DtSharedEncoder<DtMove__ToInterEncoder>());
}
 
void DtMove__ToInterInter::addCallback(DtExerciseConn* exerciseConn, DtMove__ToInterInterCb callback, void* user)
{
    exerciseConn->addPduCallback(DtMove__ToInterPdu::theKind, &DtSharedDecoder<DtMove__ToInterDecoder>, callback, user);
}
 
void DtMove__ToInterInter::removeCallback(DtExerciseConn* exerciseConn, DtMove__ToInterInterCb callback, void* user)
{
    exerciseConn->removePduCallback(DtMove__ToInterPdu::theKind, callback, user);
}

void DtMove__ToInterInter::setTarget_Point_(const ValueOfTarget_Point_& value)
{
    Own.myTarget_Point_ = value;
}
 
const DtMove__ToInterInter::ValueOfTarget_Point_& DtMove__ToInterInter::target_Point_() const
{
    return Own.myTarget_Point_;
}

void DtMove__ToInterInter::setBy__Hour(const ValueOfBy__Hour& value)
{
    Own.myBy__Hour = value;
}
 
const DtMove__ToInterInter::ValueOfBy__Hour& DtMove__ToInterInter::by__Hour() const
{
    return Own.myBy__Hour;
}

void DtMove__ToInterInter::setTugs(const ValueOfTugs& value)
{
    Own.myTugs = value;
}
 
const DtMove__ToInterInter::ValueOfTugs& DtMove__ToInterInter::tugs() const
{
    return Own.myTugs;
}

// ---- coding
static bool encode_DtMove__ToInter_Target_Point_(const DtMove__ToInterInter& interaction, DtWireWriter& writer)
{
    const DtWireForm form("GeoPoint", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, interaction.target_Point_(), form);
}
 
static bool decode_DtMove__ToInter_Target_Point_(DtMove__ToInterInter& interaction, DtWireReader& reader)
{
    const DtWireForm form("GeoPoint", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    auto value = interaction.target_Point_();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    interaction.setTarget_Point_(value);
    return true;
}
static bool encode_DtMove__ToInter_By__Hour(const DtMove__ToInterInter& interaction, DtWireWriter& writer)
{
    const DtWireForm form("HLAfloat64LE", "", R"qx(HLAvariableArray)qx",
        -1, 8, 1);
    return DtWriteValue(writer, interaction.by__Hour(), form);
}
 
static bool decode_DtMove__ToInter_By__Hour(DtMove__ToInterInter& interaction, DtWireReader& reader)
{
    const DtWireForm form("HLAfloat64LE", "", R"qx(HLAvariableArray)qx",
        -1, 8, 1);
    auto value = interaction.by__Hour();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    interaction.setBy__Hour(value);
    return true;
}
static bool encode_DtMove__ToInter_Tugs(const DtMove__ToInterInter& interaction, DtWireWriter& writer)
{
    const DtWireForm form("TugNames", "HLAASCIIchar", R"qx(HLAvariableArray)qx",
        -1, 1, 0);
    return DtWriteValue(writer, interaction.tugs(), form);
}
 
static bool decode_DtMove__ToInter_Tugs(DtMove__ToInterInter& interaction, DtWireReader& reader)
{
    const DtWireForm form("TugNames", "HLAASCIIchar", R"qx(HLAvariableArray)qx",
        -1, 1, 0);
    auto value = interaction.tugs();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    interaction.setTugs(value);
    return true;
}

DtMove__ToInterEncoder::DtMove__ToInterEncoder()
{
    addCoder("Target_Point_", &encode_DtMove__ToInter_Target_Point_);
    addCoder("By__Hour", &encode_DtMove__ToInter_By__Hour);
    addCoder("Tugs", &encode_DtMove__ToInter_Tugs);
}
 
DtMove__ToInterDecoder::DtMove__ToInterDecoder()
{
    addCoder("Target_Point_", &decode_DtMove__ToInter_Target_Point_);
    addCoder("By__Hour", &decode_DtMove__ToInter_By__Hour);
    addCoder("Tugs", &decode_DtMove__ToInter_Tugs);
}

