// Generated from case; the next generation writes it anew.
 
#include "collisionInterDIS.h"
 
#include <qx/interactionWithEncDec.h>
#include <qx/valueCoding.h>
 
DtCollisionInterInter::DtCollisionInterInter() : DtCollisionInterInter(std::string("Collision"))
{
}
 
DtCollisionInterInter::DtCollisionInterInter(const std::string& fullClassName)
    : DtInteraction(fullClassName), Own()
{
}
 
bool DtCollisionInterInter::send(DtExerciseConn* exerciseConn, const DtCollisionInterInter& interaction)
{
    return exerciseConn->sendPdu(DtCollisionInterPdu::theKind, interaction, DtSharedEncoder<DtCollisionInterEncoder>());
}
 
void DtCollisionInterInter::addCallback(DtExerciseConn* exerciseConn, DtCollisionInterInterCb callback, void* user)
{
    exerciseConn->addPduCallback(DtCollisionInterPdu::theKind, &DtSharedDecoder<DtCollisionInterDecoder>, callback, user);
}
 
void DtCollisionInterInter::removeCallback(DtExerciseConn* exerciseConn, DtCollisionInterInterCb callback, void* user)
{
    exerciseConn->removePduCallback(DtCollisionInterPdu::theKind, callback, user);
}

void DtCollisionInterInter::setForce(const ValueOfForce& value)
{
    Own.myForce = value;
}
 
const DtCollisionInterInter::ValueOfForce& DtCollisionInterInter::force() const
{
    return Own.myForce;
}

void DtCollisionInterInter::setWhere(const ValueOfWhere& value)
{
    Own.myWhere = value;
}
 
const DtCollisionInterInter::ValueOfWhere& DtCollisionInterInter::where() const
{
    return Own.myWhere;
}

void DtCollisionInterInter::setDebris(const ValueOfDebris& value)
{
    Own.myDebris = value;
}
 
const DtCollisionInterInter::ValueOfDebris& DtCollisionInterInter::debris() const
{
    return Own.myDebris;
}

// ---- coding
static bool encode_DtCollisionInter_Force(const DtCollisionInterInter& interaction, DtWireWriter& writer)
{
    const DtWireForm form("Newton", "HLAfloat64LE", R"qx(HLAvariableArray)qx",
        -1, 8, 1);
    return DtWriteValue(writer, interaction.force(), form);
}
 
static bool decode_DtCollisionInter_Force(DtCollisionInterInter& interaction, DtWireReader& reader)
{
    const DtWireForm form("Newton", "HLAfloat64LE", R"qx(HLAvariableArray)qx",
        -1, 8, 1);
    auto value = interaction.force();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    interaction.setForce(value);
    return true;
}
static bool encode_DtCollisionInter_Where(const DtCollisionInterInter& interaction, DtWireWriter& writer)
{
    const DtWireForm form("GeoPoint", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, interaction.where(), form);
}
 
static bool decode_DtCollisionInter_Where(DtCollisionInterInter& interaction, DtWireReader& reader)
{
    const DtWireForm form("GeoPoint", "", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    auto value = interaction.where();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    interaction.setWhere(value);
    return true;
}
static bool encode_DtCollisionInter_Debris(const DtCollisionInterInter& interaction, DtWireWriter& writer)
{
    const DtWireForm form("Cargo_Item_List", "Cargo__Item", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    return DtWriteValue(writer, interaction.debris(), form);
}
 
static bool decode_DtCollisionInter_Debris(DtCollisionInterInter& interaction, DtWireReader& reader)
{
    const DtWireForm form("Cargo_Item_List", "Cargo__Item", R"qx(HLAvariableArray)qx",
        -1, 0, 0);
    auto value = interaction.debris();
    if (!DtReadValue(reader, value, form))
    {
        return false;
    }
    interaction.setDebris(value);
    return true;
}

DtCollisionInterEncoder::DtCollisionInterEncoder()
{
    addCoder("Force", &encode_DtCollisionInter_Force);
    addCoder("Where", &encode_DtCollisionInter_Where);
    addCoder("Debris", &encode_DtCollisionInter_Debris);
}
 
DtCollisionInterDecoder::DtCollisionInterDecoder()
{
    addCoder("Force", &decode_DtCollisionInter_Force);
    addCoder("Where", &decode_DtCollisionInter_Where);
    addCoder("Debris", &decode_DtCollisionInter_Debris);
}

